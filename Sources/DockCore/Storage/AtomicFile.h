#pragma once

#include <QByteArray>
#include <QString>

namespace DockCore {

/// Files that are replaced whole or stay as they were. Any thread may call it, but two may not write one path at once.
namespace AtomicFile {

/// Who may read and write the file afterwards: its user alone, or, where there was a file already, whoever could
/// before.
enum class Access { ownerOnly, asBefore };

/// Puts `bytes` into the file at `path` and waits until the disk has them; throws FileError, and then the file is as it
/// was. A file that holds them already is left alone, as waiting for the disk is what takes time.
void save(const QByteArray& bytes, const QString& path, Access access);

} // namespace AtomicFile
} // namespace DockCore
