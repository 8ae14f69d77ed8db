#include "DockCore/Storage/JSONForm.h"

#include <algorithm>

namespace DockCore {

namespace {
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

std::optional<bool> JSONForm<bool>::read(const QJsonValue& json) {
    return json.isBool() ? std::optional(json.toBool()) : std::nullopt;
}

std::optional<qint64> JSONForm<qint64>::read(const QJsonValue& json) {
    // The fallback comes back for whatever is no whole number of 64 bits, so only two different answers tell it apart.
    const qint64 integer = json.toInteger(0);
    return integer == json.toInteger(1) ? std::optional(integer) : std::nullopt;
}

std::optional<double> JSONForm<double>::read(const QJsonValue& json) {
    return json.isDouble() ? std::optional(json.toDouble()) : std::nullopt;
}

std::optional<QString> JSONForm<QString>::read(const QJsonValue& json) {
    return json.isString() ? std::optional(json.toString()) : std::nullopt;
}

QJsonValue JSONForm<QDateTime>::write(const QDateTime& value) {
    static const QDateTime first(QDate(1, 1, 1), QTime(0, 0), Qt::UTC);
    static const QDateTime last(QDate(9999, 12, 31), QTime(23, 59, 59), Qt::UTC);
    // A clock gone wrong can show a year that does not fit into four digits.
    return std::clamp(value.toUTC(), first, last).toString(Qt::ISODate);
}

std::optional<QDateTime> JSONForm<QDateTime>::read(const QJsonValue& json) {
    const QString string = json.toString();
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

} // namespace DockCore
