#pragma once

#include "Kelvane/Ports/Desktop.h"
#include "Platform/Linux/PortalSettings.h"

namespace Platform {

/// The window's side of a Linux desktop. It sets the application's font, palette and renderer, and keeps font and
/// palette in step with the user's settings. Make it after the application object and before the first window.
class LinuxDesktop final : public Kelvane::Desktop {
public:
    LinuxDesktop();

    /// There is nothing to do: a program without a window is not listed here, and one with a window is.
    void setActivationPolicy(ActivationPolicy policy) override;
    void setAppearance(Appearance appearance) override;
    /// There is nothing to do: the frame is the window manager's.
    void prepareMainWindow(QWindow& window) override;
    /// There is none.
    bool showAboutPanel() override;
    void reveal(const QString& path) override;

private:
    void follow();

    PortalSettings m_settings;
    Appearance m_appearance = Appearance::system;
};

} // namespace Platform
