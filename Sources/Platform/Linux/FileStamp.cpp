#include "Platform/Linux/FileStamp.h"

#include <QFile>

#include <ctime>
#include <sys/stat.h>

namespace Platform {

namespace {

constexpr qint64 millisecond = 1'000'000;

/// How far apart two changes must be to leave different times: a few ticks of the kernel's clock, or two seconds where
/// the file system keeps no fractions (FAT keeps every second second).
qint64 resolution(qint64 time) {
    return time % millisecond != 0 ? 50 * millisecond : 2000 * millisecond;
}

qint64 nanoseconds(const timespec& time) {
    return qint64(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

} // namespace

std::optional<FileStamp> FileStamp::of(const QString& path) {
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0) {
        return std::nullopt;
    }
    timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    const qint64 modified = nanoseconds(status.st_mtim);
    const qint64 changed = nanoseconds(status.st_ctim);
    return FileStamp{.device = status.st_dev,
                     .inode = status.st_ino,
                     .size = status.st_size,
                     .modified = modified,
                     .changed = changed,
                     .isFolder = S_ISDIR(status.st_mode),
                     .isSettled = modified + resolution(modified) < nanoseconds(now) &&
                                  changed + resolution(changed) < nanoseconds(now)};
}

bool FileStamp::isUnchangedSince(const FileStamp& earlier) const {
    return earlier.isSettled && isSameFile(earlier) && size == earlier.size && modified == earlier.modified &&
           changed == earlier.changed;
}

} // namespace Platform
