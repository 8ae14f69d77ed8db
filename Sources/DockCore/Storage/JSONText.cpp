#include "DockCore/Storage/JSONText.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace DockCore {

namespace {
bool isPlain(QChar character) {
    return character >= u' ' && character <= u'~' && character != u'"' && character != u'\\';
}

/// The number as an integer where it is one that a double holds exactly.
bool isWhole(double value) {
    constexpr double limit = 9007199254740992;
    return value > -limit && value < limit && value == std::trunc(value);
}
} // namespace

void JSONText::begin(char bracket) {
    startEntry();
    m_bytes += bracket;
    ++m_depth;
    m_isEmpty = true;
}

void JSONText::end(char bracket) {
    --m_depth;
    if (!m_isEmpty)
        startLine();
    m_bytes += bracket;
    m_isEmpty = false;
    if (m_depth == 0)
        m_bytes += '\n';
}

void JSONText::startEntry() {
    if (m_followsKey) {
        m_followsKey = false;
        return;
    }
    if (!m_isEmpty)
        m_bytes += ',';
    if (m_depth > 0)
        startLine();
    m_isEmpty = false;
}

void JSONText::startLine() {
    m_bytes += '\n';
    m_bytes.append(4 * m_depth, ' ');
}

void JSONText::key(QStringView key) {
    startEntry();
    append(key);
    m_bytes += ": ";
    m_followsKey = true;
}

void JSONText::value(bool value) {
    startEntry();
    m_bytes += value ? "true" : "false";
}

void JSONText::value(qint64 value) {
    startEntry();
    m_bytes += QByteArray::number(value);
}

void JSONText::value(double value) {
    if (isWhole(value)) {
        this->value(static_cast<qint64>(value));
        return;
    }
    m_isValid = m_isValid && std::isfinite(value);
    startEntry();
    // The shortest digits that read back as the same number.
    m_bytes += QByteArray::number(value, 'g', QLocale::FloatingPointShortest);
}

void JSONText::value(const QString& value) {
    startEntry();
    append(value);
}

void JSONText::value(const QJsonValue& value) {
    switch (value.type()) {
    case QJsonValue::Bool:
        return this->value(value.toBool());
    case QJsonValue::Double: {
        const double number = value.toDouble();
        if (!std::isfinite(number))
            return this->value(number);
        // What is no 64-bit integer gives back either fallback.
        const qint64 integer = value.toInteger(0);
        return integer == value.toInteger(1) ? this->value(integer) : this->value(number);
    }
    case QJsonValue::String:
        return this->value(value.toString());
    case QJsonValue::Array: {
        beginArray();
        const QJsonArray array = value.toArray();
        for (const QJsonValue element : array)
            this->value(element);
        return endArray();
    }
    case QJsonValue::Object: {
        beginObject();
        const QJsonObject object = value.toObject();
        for (auto member = object.constBegin(); member != object.constEnd(); ++member) {
            key(member.key());
            this->value(member.value());
        }
        return endObject();
    }
    case QJsonValue::Null:
    case QJsonValue::Undefined:
        startEntry();
        m_bytes += "null";
    }
}

void JSONText::append(QStringView string) {
    m_bytes += '"';
    if (std::all_of(string.begin(), string.end(), isPlain)) {
        const qsizetype start = m_bytes.size();
        m_bytes.resize(start + string.size());
        std::transform(string.begin(), string.end(), m_bytes.begin() + start,
                       [](QChar character) { return static_cast<char>(character.unicode()); });
    } else {
        for (qsizetype i = 0; i < string.size(); ++i) {
            const QChar character = string[i];
            const bool isPair = character.isHighSurrogate() && i + 1 < string.size() && string[i + 1].isLowSurrogate();
            if (character == u'"' || character == u'\\') {
                m_bytes += '\\';
                m_bytes += static_cast<char>(character.unicode());
            } else if (isPair) {
                m_bytes += string.sliced(i++, 2).toUtf8();
            } else if (character < u' ' || character.isSurrogate()) {
                m_bytes += "\\u" + QByteArray::number(character.unicode(), 16).rightJustified(4, '0');
            } else {
                m_bytes += QStringView(&character, 1).toUtf8();
            }
        }
    }
    m_bytes += '"';
}

} // namespace DockCore
