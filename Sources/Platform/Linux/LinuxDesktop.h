#pragma once

#include "Platform/Linux/AutostartLoginItem.h"
#include "Platform/Linux/Desktop.h"
#include "Platform/Linux/Images.h"
#include "Platform/Linux/X11Workspace.h"

/// The application's ports on Linux: owns one adapter a port. Made after the application object, by `main` alone.
class LinuxDesktop {
public:
    /// What must be settled before the application object is made: without a display to show itself on the application
    /// runs on without a window, keeps its schedule, and makes its pictures for a dense screen.
    static void prepareEnvironment();

    Kelvane::Workspace& workspace() { return m_workspace; }
    Kelvane::LoginItem& loginItem() { return m_loginItem; }
    Kelvane::Desktop& desktop() { return m_desktop; }
    Kelvane::Images& images() { return m_images; }

private:
    Linux::X11Workspace m_workspace;
    Linux::AutostartLoginItem m_loginItem;
    Linux::Desktop m_desktop;
    Linux::Images m_images;
};
