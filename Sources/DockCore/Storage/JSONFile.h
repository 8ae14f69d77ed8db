#pragma once

#include <QJsonValue>
#include <QString>

#include <optional>

namespace DockCore {

/// JSON files in the form of this application: indented, keys sorted, absent members left out. Any thread may call it.
namespace JSONFile {

/// Writes `value` (an object or an array) to `path`, whole or not at all, readable by the user alone; throws FileError,
/// also for a number that JSON cannot hold.
void save(const QJsonValue& value, const QString& path);
/// The object or array in the file; nothing when it is missing, unreadable, not JSON or over 64 MB.
std::optional<QJsonValue> read(const QString& path);

} // namespace JSONFile
} // namespace DockCore
