#pragma once

#include <QByteArray>
#include <QString>

namespace DockCore {

/// A regular file read whole. A plain value; any thread may read.
struct BoundedFile {
    enum class State {
        read,
        missing,
        /// A folder, a pipe, a device.
        notRegular,
        tooLarge,
        unreadable
    };
    State state = State::missing;
    /// Empty unless the file was read.
    QByteArray bytes;
    /// What the system says about a file that is missing or unreadable.
    QString error = {};

    /// Reads a file of at most `limit` bytes. Nothing but a regular file is opened: opening a pipe would wait for its
    /// writer, and a device may never end.
    static BoundedFile read(const QString& path, qint64 limit);
};

} // namespace DockCore
