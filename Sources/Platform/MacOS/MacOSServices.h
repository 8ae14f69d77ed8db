#pragma once

#include "DockCore/Services.h"
#include "Platform/MacOS/MacOSBundles.h"
#include "Platform/MacOS/MacOSClock.h"
#include "Platform/MacOS/MacOSFolders.h"
#include "Platform/MacOS/MacOSMetadata.h"
#include "Platform/MacOS/MacOSPreferences.h"
#include "Platform/Posix/PosixProcesses.h"

/// The adapters for the logic, one a port. `main` makes one and keeps it to the end. Making it asks the system for
/// nothing.
class MacOSServices {
public:
    DockCore::Services services();

private:
    Platform::MacOSPreferences m_preferences;
    Platform::PosixProcesses m_processes;
    Platform::MacOSBundles m_bundles;
    Platform::MacOSFolders m_folders;
    Platform::MacOSMetadata m_metadata;
    Platform::MacOSClock m_clock;
};
