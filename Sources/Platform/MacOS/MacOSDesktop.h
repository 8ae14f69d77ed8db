#pragma once

#include "Kelvane/Ports/Desktop.h"

#include <memory>

namespace Platform {

class NotificationObservers;

/// The desktop through AppKit. Main thread only.
class MacOSDesktop final : public Kelvane::Desktop {
public:
    /// Keeps the application's "reducedMotion" in step with the user's setting from now on.
    MacOSDesktop();
    ~MacOSDesktop() override;

    /// `regular` also brings the application to the front: one that just became regular is behind all others.
    void setActivationPolicy(ActivationPolicy policy) override;
    void setAppearance(Appearance appearance) override;
    void prepareMainWindow(QWindow& window) override;
    /// It takes what it says from the bundle's Info.plist.
    bool showAboutPanel() override;
    void reveal(const QString& path) override;

private:
    std::unique_ptr<NotificationObservers> m_observers;
};

} // namespace Platform
