#include "Platform/Linux/LinuxServices.h"

namespace Platform {

DockCore::Services LinuxServices::platform() {
    return {.preferences = m_preferences,
            .processes = m_processes,
            .bundles = m_bundles,
            .folders = m_folders,
            .metadata = m_metadata,
            .clock = m_clock};
}

} // namespace Platform
