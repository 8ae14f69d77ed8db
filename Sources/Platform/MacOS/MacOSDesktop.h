#pragma once

#include "Platform/MacOS/Desktop.h"
#include "Platform/MacOS/Images.h"
#include "Platform/MacOS/LoginItem.h"
#include "Platform/MacOS/Workspace.h"

/// The application's ports on macOS: owns one adapter a port. Made after the application object, by `main` alone.
class MacOSDesktop {
public:
    /// What must be settled before the application object is made: a start brings nothing to the front, as for one at
    /// login. The window does, when it is shown.
    static void prepareEnvironment() { qputenv("QT_MAC_DISABLE_FOREGROUND_APPLICATION_TRANSFORM", "1"); }

    Kelvane::Workspace& workspace() { return m_workspace; }
    Kelvane::LoginItem& loginItem() { return m_loginItem; }
    Kelvane::Desktop& desktop() { return m_desktop; }
    Kelvane::Images& images() { return m_images; }

private:
    MacOS::Workspace m_workspace;
    MacOS::LoginItem m_loginItem;
    MacOS::Desktop m_desktop;
    MacOS::Images m_images;
};
