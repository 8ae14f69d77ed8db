#pragma once

#include "DockCore/Services.h"
#include "Platform/Linux/LinuxBundles.h"
#include "Platform/Linux/LinuxClock.h"
#include "Platform/Linux/LinuxFolders.h"
#include "Platform/Linux/LinuxMetadata.h"
#include "Platform/Linux/LinuxPreferences.h"
#include "Platform/Posix/PosixProcesses.h"

/// The adapters for the logic, one a port. `main` makes one and keeps it to the end. Making it touches no file.
class LinuxServices {
public:
    LinuxServices();
    DockCore::Services services();

private:
    Platform::LinuxPreferences m_preferences;
    Platform::PosixProcesses m_processes;
    Platform::LinuxFolders m_folders;
    Platform::LinuxBundles m_bundles;
    Platform::LinuxMetadata m_metadata;
    Platform::LinuxClock m_clock;
};
