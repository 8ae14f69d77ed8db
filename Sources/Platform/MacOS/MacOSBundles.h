#pragma once

#include "DockCore/Ports/Bundles.h"

namespace Platform {

/// Bundles as Foundation reads them and the workspace finds them. Any thread may call it, several at a time.
class MacOSBundles final : public DockCore::Bundles {
public:
    std::optional<QString> identifier(const QString& path) override;
    QString displayName(const QString& path) override;
    std::optional<QString> path(const QString& identifier) override;
    /// Launch Services has noticed it by itself.
    void remember(const QString&) override {}
};

} // namespace Platform
