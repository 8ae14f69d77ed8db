#include "DockCore/Storage/AtomicFile.h"

#include "DockCore/Error.h"
#include "DockCore/Storage/BoundedFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace DockCore {

namespace {

FileError saveError(const QString& path, const QString& reason) {
    const QString stop = reason.endsWith(u'.') ? QString() : u"."_s;
    return FileError(u"“%1” could not be saved: %2%3"_s.arg(QFileInfo(path).fileName(), reason, stop));
}

/// The file is already what saving would make of it.
bool holds(const QString& path, const QByteArray& bytes, AtomicFile::Access access) {
    constexpr auto others = QFileDevice::ReadGroup | QFileDevice::WriteGroup | QFileDevice::ExeGroup |
                            QFileDevice::ReadOther | QFileDevice::WriteOther | QFileDevice::ExeOther;
    if (access == AtomicFile::Access::ownerOnly && (QFile::permissions(path) & others))
        return false;
    const BoundedFile file = BoundedFile::read(path, bytes.size());
    return file.state == BoundedFile::State::read && file.bytes == bytes;
}

} // namespace

void AtomicFile::save(const QByteArray& bytes, const QString& path, Access access) {
    if (holds(path, bytes, access))
        return;
    const bool isNew = !QFileInfo::exists(path);
    QSaveFile file(path);
    // Unbuffered, because QSaveFile does not notice when its buffer finds no room on a full disk, and would put an
    // empty file in place.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        throw saveError(path, file.errorString());
    // Before the content goes in: nobody else shall read it, not even for a moment.
    const bool isPrivate = isNew || access == Access::ownerOnly;
    if (isPrivate && !file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner))
        throw saveError(path, file.errorString());
    if (file.write(bytes) != bytes.size() || !file.commit())
        throw saveError(path, file.errorString());
}

} // namespace DockCore
