#include "Platform/MacOS/MacOSServices.h"

namespace Platform {

DockCore::Services MacOSServices::services() {
    return {.preferences = m_preferences,
            .processes = m_processes,
            .bundles = m_bundles,
            .folders = m_folders,
            .metadata = m_metadata,
            .clock = m_clock};
}

} // namespace Platform
