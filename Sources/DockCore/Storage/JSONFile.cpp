#include "DockCore/Storage/JSONFile.h"

#include "DockCore/Error.h"
#include "DockCore/Storage/AtomicFile.h"
#include "DockCore/Storage/JSONText.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace DockCore {

namespace {
/// Some twenty times what a thousand applications fill in 91 days. More is no file of ours, and unfolding it could take
/// all memory there is.
constexpr qint64 largestFile = 64LL * 1024 * 1024;

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

/// The number at `position`, as long as all its characters are decimal digits.
std::optional<int> digits(QStringView text, qsizetype position, qsizetype count) {
    int number = 0;
    for (const QChar character : text.sliced(position, count)) {
        if (!isDigit(character))
            return std::nullopt;
        number = number * 10 + (character.unicode() - u'0');
    }
    return number;
}

/// Seconds east of UTC, from "Z", "+hh:mm" or "-hh:mm".
std::optional<int> offset(QStringView text) {
    if (text == u"Z")
        return 0;
    if (text.size() != 6 || (text[0] != u'+' && text[0] != u'-') || text[3] != u':')
        return std::nullopt;
    const auto hours = digits(text, 1, 2);
    const auto minutes = digits(text, 4, 2);
    if (!hours || !minutes || *hours > 23 || *minutes > 59)
        return std::nullopt;
    const int seconds = (*hours * 60 + *minutes) * 60;
    return text[0] == u'-' ? -seconds : seconds;
}
} // namespace

void JSONFile::save(const QJsonValue& value, const QString& path) {
    Q_ASSERT(value.isObject() || value.isArray());
    JSONText text;
    text.value(value);
    save(text, path);
}

void JSONFile::save(const JSONText& text, const QString& path) {
    if (!text.isValid())
        throw FileError(
            u"“%1” could not be saved: a number in it cannot be written."_s.arg(QFileInfo(path).fileName()));
    AtomicFile::save(text.bytes(), path, AtomicFile::Access::ownerOnly);
}

std::optional<QJsonValue> JSONFile::read(const QString& path) {
    // A pipe or a device would never end.
    if (!QFileInfo(path).isFile())
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) || file.size() > largestFile)
        return std::nullopt;
    // No more than is there: reading sets aside at once what it is asked for.
    const QByteArray bytes = file.read(file.size());
    if (file.error() != QFileDevice::NoError)
        return std::nullopt;
    const QJsonDocument document = QJsonDocument::fromJson(bytes);
    if (document.isObject())
        return document.object();
    if (document.isArray())
        return document.array();
    return std::nullopt;
}

QString JSONFile::dateString(const QDateTime& date) {
    return date.toUTC().toString(Qt::ISODate);
}

std::optional<bool> JSONFile::boolean(const QJsonValue& value) {
    return value.isBool() ? std::optional(value.toBool()) : std::nullopt;
}

std::optional<qint64> JSONFile::integer(const QJsonValue& value) {
    // The fallback comes back for whatever is no whole number of 64 bits, so only two different answers tell it apart.
    const qint64 integer = value.toInteger(0);
    return integer == value.toInteger(1) ? std::optional(integer) : std::nullopt;
}

std::optional<double> JSONFile::number(const QJsonValue& value) {
    return value.isDouble() ? std::optional(value.toDouble()) : std::nullopt;
}

std::optional<QString> JSONFile::string(const QJsonValue& value) {
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

std::optional<QStringList> JSONFile::strings(const QJsonValue& value) {
    if (!value.isArray())
        return std::nullopt;
    const QJsonArray array = value.toArray();
    QStringList strings;
    strings.reserve(array.size());
    for (const QJsonValue element : array) {
        if (!element.isString())
            return std::nullopt;
        strings.append(element.toString());
    }
    return strings;
}

std::optional<QDateTime> JSONFile::date(const QJsonValue& value) {
    const QString string = value.toString();
    const QStringView text = string;
    constexpr qsizetype zone = 19;
    if (text.size() <= zone || text[4] != u'-' || text[7] != u'-' || text[10] != u'T' || text[13] != u':' ||
        text[16] != u':')
        return std::nullopt;
    const auto year = digits(text, 0, 4);
    const auto month = digits(text, 5, 2);
    const auto day = digits(text, 8, 2);
    const auto hour = digits(text, 11, 2);
    const auto minute = digits(text, 14, 2);
    const auto second = digits(text, 17, 2);
    const auto east = offset(text.sliced(zone));
    if (!year || !month || !day || !hour || !minute || !second || !east)
        return std::nullopt;
    const QDate date(*year, *month, *day);
    const QTime time(*hour, *minute, *second);
    if (!date.isValid() || !time.isValid())
        return std::nullopt;
    return QDateTime(date, time, Qt::UTC).addSecs(-*east);
}

bool JSONFile::isAbsent(const QJsonValue& value) {
    return value.isUndefined() || value.isNull();
}

} // namespace DockCore
