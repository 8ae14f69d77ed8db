#pragma once

#include <QDateTime>
#include <QJsonValue>
#include <QString>
#include <QStringList>

#include <optional>

namespace DockCore {

class JSONText;

/// The house form of JSON: indented, keys sorted, dates in ISO 8601 and UTC with whole seconds, absent members left
/// out. Reading is strict for each value and silent for the whole file. Any thread may call it.
namespace JSONFile {

/// Writes `value` (an object or an array) to `path`, whole or not at all, readable by the user alone; throws FileError,
/// also for a number that JSON cannot hold.
void save(const QJsonValue& value, const QString& path);
void save(const JSONText& text, const QString& path);
/// The object or array in the file; nothing when it is missing, unreadable, not JSON or over 64 MB.
std::optional<QJsonValue> read(const QString& path);

QString dateString(const QDateTime& date);

/// The value when it is of this type; nothing is converted into another.
std::optional<bool> boolean(const QJsonValue& value);
std::optional<qint64> integer(const QJsonValue& value);
std::optional<double> number(const QJsonValue& value);
std::optional<QString> string(const QJsonValue& value);
std::optional<QStringList> strings(const QJsonValue& value);
/// Takes "yyyy-MM-ddTHH:mm:ss" with "Z" or an offset, nothing else.
std::optional<QDateTime> date(const QJsonValue& value);
/// Whether an optional member is not there: left out or null.
bool isAbsent(const QJsonValue& value);

} // namespace JSONFile
} // namespace DockCore
