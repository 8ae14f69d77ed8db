#include "Platform/Linux/LinuxImages.h"

#include "DockCore/Storage/BoundedFile.h"
#include "Platform/Linux/IconFile.h"

namespace Platform {

namespace {

constexpr qint64 largestIcon = 32LL * 1024 * 1024;

} // namespace

std::optional<QImage> LinuxImages::applicationIcon(const QString& path, int size) {
    const std::optional<QString> file = IconFile::inBundle(path);
    return file ? IconFile::read(DockCore::BoundedFile::read(*file, largestIcon).bytes, size) : std::nullopt;
}

std::optional<QIcon> LinuxImages::symbol(const QString&, const QString&) {
    return std::nullopt;
}

std::optional<QImage> LinuxImages::windowPicture(QWindow&, const QImage&, const QColor&) {
    return std::nullopt;
}

} // namespace Platform
