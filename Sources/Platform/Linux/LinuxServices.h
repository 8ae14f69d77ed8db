#pragma once

#include "DockCore/Services.h"
#include "Platform/Linux/LinuxBundles.h"
#include "Platform/Linux/LinuxClock.h"
#include "Platform/Linux/LinuxFolders.h"
#include "Platform/Linux/LinuxMetadata.h"
#include "Platform/Linux/LinuxPreferences.h"
#include "Platform/Posix/PosixProcesses.h"

/// This computer, as the logic sees it: owns one adapter a port. `main` makes one, installs `platform()` with a
/// `ServicesScope` and keeps both to the end. Making it touches no file.
class LinuxServices {
public:
    DockCore::Services platform();

private:
    Platform::LinuxPreferences m_preferences;
    Platform::PosixProcesses m_processes;
    Platform::LinuxBundles m_bundles;
    Platform::LinuxFolders m_folders;
    Platform::LinuxMetadata m_metadata;
    Platform::LinuxClock m_clock;
};
