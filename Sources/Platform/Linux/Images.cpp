#include "Platform/Linux/Images.h"

#include "Platform/Linux/FileContent.h"
#include "Platform/Linux/IconFile.h"

namespace Linux {

namespace {
constexpr qint64 largestIcon = 32LL * 1024 * 1024;
} // namespace

std::optional<QImage> Images::applicationIcon(const QString& path, int size) {
    const std::optional<QString> file = IconFile::inBundle(path);
    return file ? IconFile::read(FileContent::of(*file, largestIcon).bytes, size) : std::nullopt;
}

std::optional<QIcon> Images::symbol(const QString&, const QString&) {
    return std::nullopt;
}

std::optional<QImage> Images::windowPicture(QWindow&, const QImage&, const QColor&) {
    return std::nullopt;
}

} // namespace Linux
