#pragma once

#include "DockCore/Services.h"
#include "Platform/MacOS/MacOSBundles.h"
#include "Platform/MacOS/MacOSClock.h"
#include "Platform/MacOS/MacOSFolders.h"
#include "Platform/MacOS/MacOSMetadata.h"
#include "Platform/MacOS/MacOSPreferences.h"
#include "Platform/QtProcesses.h"

namespace Platform {

/// The adapters for the logic, one a port. `main` makes one and keeps it to the end. Making it asks the system for
/// nothing.
class MacOSServices final {
public:
    DockCore::Services services();

private:
    MacOSPreferences m_preferences;
    QtProcesses m_processes;
    MacOSBundles m_bundles;
    MacOSFolders m_folders;
    MacOSMetadata m_metadata;
    MacOSClock m_clock;
};

} // namespace Platform
