#pragma once

#include "DockCore/Platform.h"
#include "Platform/MacOS/Bundles.h"
#include "Platform/MacOS/Clock.h"
#include "Platform/MacOS/Folders.h"
#include "Platform/MacOS/Metadata.h"
#include "Platform/MacOS/Preferences.h"
#include "Platform/Posix/Processes.h"

/// This Mac, as the logic sees it: owns one adapter a port. `main` makes one, installs `platform()` with a
/// `PlatformScope` and keeps both to the end. Making it asks the system for nothing.
class MacOSPlatform {
public:
    DockCore::Platform platform();

private:
    MacOS::Preferences m_preferences;
    Posix::Processes m_processes;
    MacOS::Bundles m_bundles;
    MacOS::Folders m_folders;
    MacOS::Metadata m_metadata;
    MacOS::Clock m_clock;
};
