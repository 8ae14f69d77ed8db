#pragma once

#include <QString>

#include <optional>

namespace Platform {

/// Tells one state of a file or folder from another without reading it. A plain value; any thread may use its own.
struct FileStamp {
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = 0;
    qint64 modified = 0;
    qint64 changed = 0;
    bool isFolder = false;
    /// The last change lies so far back that the next one must leave another stamp, however coarse the file system's
    /// clock is. Only then does an equal stamp mean equal content.
    bool isSettled = false;

    /// The stamp of what `path` leads to; nothing when it leads nowhere.
    static std::optional<FileStamp> of(const QString& path);
    bool isSameFile(const FileStamp& other) const { return device == other.device && inode == other.inode; }
    /// The content is certainly what it was when `earlier` was taken.
    bool isUnchangedSince(const FileStamp& earlier) const;
};

} // namespace Platform
