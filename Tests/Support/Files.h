#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

namespace Files {

/// What a file holds; nothing when there is none.
inline QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Makes a file hold these bytes.
inline bool put(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace Files
