#include "Platform/Linux/RunningProcess.h"

#include <QFile>

#include <filesystem>

namespace Platform::RunningProcess {

std::optional<DockCore::AppInfo> applicationAround(const QString& executable, DockCore::Bundles& bundles) {
    for (qsizetype end = executable.lastIndexOf(u'/'); end > 0; end = executable.lastIndexOf(u'/', end - 1)) {
        const QString folder = executable.first(end);
        if (!DockCore::isApplicationPath(folder))
            continue;
        if (const auto application = DockCore::AppInfo::fromBundle(folder, bundles))
            return application;
    }
    return std::nullopt;
}

std::optional<DockCore::AppInfo> application(qint64 process, DockCore::Bundles& bundles) {
    std::error_code error;
    const auto link = std::filesystem::read_symlink("/proc/" + std::to_string(process) + "/exe", error);
    if (error)
        return std::nullopt;
    // An update replaces a program while it runs; the kernel then says " (deleted)" behind the name, which changes
    // nothing about the folders around it.
    return applicationAround(QFile::decodeName(QByteArray::fromStdString(link.native())), bundles);
}

} // namespace Platform::RunningProcess
