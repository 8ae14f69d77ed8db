#include "Platform/Linux/LinuxServices.h"

#include "DockCore/AppCatalog.h"
#include "DockCore/Storage/Paths.h"

namespace Platform {

LinuxServices::LinuxServices()
    : m_bundles([this] { return DockCore::AppCatalog::searchFolders(m_folders); },
                [this] { return DockCore::Paths(m_folders).support() + QStringLiteral("/bundles.json"); }) {}

DockCore::Services LinuxServices::services() {
    return {.preferences = m_preferences,
            .processes = m_processes,
            .bundles = m_bundles,
            .folders = m_folders,
            .metadata = m_metadata,
            .clock = m_clock};
}

} // namespace Platform
