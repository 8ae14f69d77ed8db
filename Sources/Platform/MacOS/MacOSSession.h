#pragma once

#include "DockCore/Services.h"
#include "Platform/MacOS/MacOSDesktop.h"
#include "Platform/MacOS/MacOSImages.h"
#include "Platform/MacOS/MacOSLoginItem.h"
#include "Platform/MacOS/MacOSWorkspace.h"

namespace Platform {

/// The application's ports on macOS: owns one adapter a port. Made after the application object, by `main` alone.
class MacOSSession final {
public:
    explicit MacOSSession(const DockCore::Services&) {}

    /// What must be settled before the application object is made: a start brings nothing to the front, as for one at
    /// login. The window does, when it is shown.
    static void prepareEnvironment() { qputenv("QT_MAC_DISABLE_FOREGROUND_APPLICATION_TRANSFORM", "1"); }

    Kelvane::Workspace& workspace() { return m_workspace; }
    Kelvane::LoginItem& loginItem() { return m_loginItem; }
    Kelvane::Desktop& desktop() { return m_desktop; }
    Kelvane::Images& images() { return m_images; }

private:
    MacOSWorkspace m_workspace;
    MacOSLoginItem m_loginItem;
    MacOSDesktop m_desktop;
    MacOSImages m_images;
};

} // namespace Platform
