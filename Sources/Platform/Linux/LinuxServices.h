#pragma once

#include "DockCore/Services.h"
#include "Platform/Linux/LinuxBundles.h"
#include "Platform/Linux/LinuxClock.h"
#include "Platform/Linux/LinuxFolders.h"
#include "Platform/Linux/LinuxMetadata.h"
#include "Platform/Linux/LinuxPreferences.h"
#include "Platform/QtProcesses.h"

namespace Platform {

/// This computer, as the logic sees it: owns one adapter a port. `main` makes one, installs `platform()` with a
/// `ServicesScope` and keeps both to the end. Making it touches no file.
class LinuxServices final {
public:
    DockCore::Services platform();

private:
    LinuxPreferences m_preferences;
    QtProcesses m_processes;
    LinuxBundles m_bundles;
    LinuxFolders m_folders;
    LinuxMetadata m_metadata;
    LinuxClock m_clock;
};

} // namespace Platform
