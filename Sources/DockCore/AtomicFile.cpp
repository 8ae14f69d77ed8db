#include "DockCore/AtomicFile.h"

#include "DockCore/Error.h"

#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace DockCore {

namespace {

FileError saveError(const QString& path, const QString& reason) {
    const QString stop = reason.endsWith(u'.') ? QString() : u"."_s;
    return FileError(u"“%1” could not be saved: %2%3"_s.arg(QFileInfo(path).fileName(), reason, stop));
}

} // namespace

void AtomicFile::save(const QByteArray& bytes, const QString& path, Access access) {
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
