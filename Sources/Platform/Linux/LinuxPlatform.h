#pragma once

#include "DockCore/Platform.h"
#include "Platform/Linux/Bundles.h"
#include "Platform/Linux/Clock.h"
#include "Platform/Linux/Folders.h"
#include "Platform/Linux/Metadata.h"
#include "Platform/Linux/Preferences.h"
#include "Platform/Posix/Processes.h"

/// This computer, as the logic sees it: owns one adapter a port. `main` makes one, installs `platform()` with a
/// `PlatformScope` and keeps both to the end. Making it touches no file.
class LinuxPlatform {
public:
    DockCore::Platform platform();

private:
    Linux::Preferences m_preferences;
    Posix::Processes m_processes;
    Linux::Bundles m_bundles;
    Linux::Folders m_folders;
    Linux::Metadata m_metadata;
    Linux::Clock m_clock;
};
