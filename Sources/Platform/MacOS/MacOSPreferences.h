#pragma once

#include "DockCore/Ports/Preferences.h"
#include "Platform/MacOS/PreferenceName.h"

namespace Platform {

/// A preferences domain of the current user through the system's preferences service, never through its file: the
/// service keeps values in memory and would write over ours. Any thread may call it, one at a time.
class MacOSPreferences final : public DockCore::Preferences {
public:
    /// The Dock's domain, unless told otherwise.
    explicit MacOSPreferences(const QString& domain = QStringLiteral("com.apple.dock"));

    bool synchronize() override;
    std::optional<DockCore::PropertyList> copyValue(const QString& key) override;
    void setValue(const QString& key, const std::optional<DockCore::PropertyList>& value) override;

private:
    PreferenceDomain m_domain;
    /// A value could not be handed over, which only the next `synchronize` can tell.
    bool m_refusedValue = false;
};

} // namespace Platform
