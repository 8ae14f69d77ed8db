#pragma once

#include "DockCore/Services.h"
#include "Platform/Linux/LinuxBundles.h"
#include "Platform/Linux/LinuxClock.h"
#include "Platform/Linux/LinuxFolders.h"
#include "Platform/Linux/LinuxMetadata.h"
#include "Platform/Linux/LinuxPreferences.h"
#include "Platform/QtProcesses.h"

namespace Platform {

/// The adapters for the logic, one a port. `main` makes one and keeps it to the end. Making it touches no file.
class LinuxServices final {
public:
    LinuxServices();
    DockCore::Services services();

private:
    LinuxPreferences m_preferences;
    QtProcesses m_processes;
    LinuxFolders m_folders;
    LinuxBundles m_bundles;
    LinuxMetadata m_metadata;
    LinuxClock m_clock;
};

} // namespace Platform
