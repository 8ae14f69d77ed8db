#include "Platform/Linux/FileContent.h"

#include <QFile>

#include <cerrno>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

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

FileStamp stampOf(const struct stat& status) {
    timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    const qint64 modified = nanoseconds(status.st_mtim);
    const qint64 changed = nanoseconds(status.st_ctim);
    return {.device = status.st_dev,
            .inode = status.st_ino,
            .size = status.st_size,
            .modified = modified,
            .changed = changed,
            .isFolder = S_ISDIR(status.st_mode),
            .isSettled =
                modified + resolution(modified) < nanoseconds(now) && changed + resolution(changed) < nanoseconds(now)};
}

class Descriptor {
public:
    explicit Descriptor(const QString& path)
        // Without O_NONBLOCK, opening a pipe would wait for its writer.
        : m_descriptor(::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {}
    ~Descriptor() {
        if (isOpen()) {
            ::close(m_descriptor);
        }
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    bool isOpen() const { return m_descriptor >= 0; }
    int number() const { return m_descriptor; }

private:
    int m_descriptor;
};

} // namespace

std::optional<FileStamp> FileStamp::of(const QString& path) {
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0) {
        return std::nullopt;
    }
    return stampOf(status);
}

bool FileStamp::isUnchangedSince(const FileStamp& earlier) const {
    return earlier.isSettled && isSameFile(earlier) && size == earlier.size && modified == earlier.modified &&
           changed == earlier.changed;
}

FileContent FileContent::of(const QString& path, qint64 limit) {
    const Descriptor file(path);
    if (!file.isOpen()) {
        const bool isMissing = errno == ENOENT || errno == ENOTDIR;
        return {.state = isMissing ? State::missing : State::unreadable, .bytes = {}, .stamp = {}};
    }
    FileContent content = {.state = State::unreadable, .bytes = {}, .stamp = {}};
    struct stat status = {};
    if (::fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode) || status.st_size > limit) {
        return content;
    }
    content.stamp = stampOf(status);
    // One byte more than expected, so that a read which does not fill it tells that the file has ended.
    QByteArray bytes(status.st_size + 1, Qt::Uninitialized);
    qsizetype filled = 0;
    while (true) {
        const ssize_t count = ::read(file.number(), bytes.data() + filled, size_t(bytes.size() - filled));
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return content;
        }
        filled += count;
        if (filled < bytes.size()) {
            break;
        }
        // It has grown since it was measured.
        if (filled > limit) {
            return content;
        }
        bytes.resize(qMin<qsizetype>(filled * 2, limit + 1));
    }
    bytes.truncate(filled);
    content.bytes = bytes;
    content.state = State::read;
    return content;
}

} // namespace Platform
