#pragma once

#include "DockCore/Services.h"
#include "Platform/Linux/LinuxDesktop.h"
#include "Platform/Linux/LinuxImages.h"
#include "Platform/Linux/LinuxLoginItem.h"
#include "Platform/Linux/X11Workspace.h"

namespace Platform {

/// The application's ports on Linux: owns one adapter a port. Made after the application object, by `main` alone.
class LinuxSession final {
public:
    explicit LinuxSession(const DockCore::Services& services)
        : m_workspace(services.bundles) {}

    /// What must be settled before the application object is made: without a display to show itself on the application
    /// runs on without a window, keeps its schedule, and makes its pictures for a dense screen.
    static void prepareEnvironment();

    Kelvane::Workspace& workspace() { return m_workspace; }
    Kelvane::LoginItem& loginItem() { return m_loginItem; }
    Kelvane::Desktop& desktop() { return m_desktop; }
    Kelvane::Images& images() { return m_images; }

private:
    X11Workspace m_workspace;
    LinuxLoginItem m_loginItem;
    LinuxDesktop m_desktop;
    LinuxImages m_images;
};

} // namespace Platform
