#include "DockCore/Storage/BinaryPropertyListWriter.h"

#include "DockCore/Storage/PropertyListGuard.h"

#include <QtEndian>

#include <algorithm>
#include <bit>
#include <utility>

namespace DockCore {

namespace {

constexpr char trueMarker = 0x09;
constexpr char falseMarker = 0x08;
constexpr char integerMarker = 0x10;
constexpr char largeIntegerMarker = 0x14;
constexpr char realMarker = 0x23;
constexpr char dateMarker = 0x33;
constexpr char dataMarker = 0x40;
constexpr char asciiMarker = 0x50;
constexpr char utf16Marker = 0x60;
constexpr char uidMarker = '\x80';
constexpr char arrayMarker = '\xA0';
constexpr char dictionaryMarker = '\xD0';

/// The lower `size` bytes of `number`.
QByteArray bigEndian(quint64 number, qsizetype size = 8) {
    QByteArray bytes(8, '\0');
    qToBigEndian(number, bytes.data());
    return bytes.last(size);
}

/// How many bytes, of those that the format has, hold `number`.
qsizetype sizeOf(quint64 number) {
    if (number <= 0xFF)
        return 1;
    if (number <= 0xFFFF)
        return 2;
    return number <= 0xFFFFFFFF ? 4 : 8;
}

QByteArray integer(quint64 number) {
    const qsizetype size = sizeOf(number);
    const auto exponent = static_cast<char>(std::countr_zero(static_cast<quint64>(size)));
    return static_cast<char>(integerMarker | exponent) + bigEndian(number, size);
}

QByteArray counted(char marker, qsizetype count) {
    if (count < 15)
        return QByteArray(1, static_cast<char>(marker | static_cast<char>(count)));
    return static_cast<char>(marker | 15) + integer(static_cast<quint64>(count));
}

QByteArray string(const QString& text) {
    const bool isASCII = std::all_of(text.cbegin(), text.cend(), [](QChar unit) { return unit.unicode() < 0x80; });
    if (isASCII)
        return counted(asciiMarker, text.size()) + text.toLatin1();
    QByteArray bytes = counted(utf16Marker, text.size());
    for (const QChar unit : text)
        bytes += bigEndian(unit.unicode(), 2);
    return bytes;
}

QByteArray scalar(const PropertyList& list) {
    if (const auto* flag = std::get_if<bool>(&list.value))
        return QByteArray(1, *flag ? trueMarker : falseMarker);
    if (const auto* number = std::get_if<qint64>(&list.value))
        return integer(static_cast<quint64>(*number));
    if (const auto* number = std::get_if<quint64>(&list.value))
        return largeIntegerMarker + QByteArray(8, '\0') + bigEndian(*number);
    if (const auto* number = std::get_if<double>(&list.value))
        return realMarker + bigEndian(std::bit_cast<quint64>(*number));
    if (const auto* date = std::get_if<PropertyList::Date>(&list.value))
        return dateMarker + bigEndian(std::bit_cast<quint64>(date->seconds));
    if (const auto* data = std::get_if<QByteArray>(&list.value))
        return counted(dataMarker, data->size()) + *data;
    if (const auto* text = std::get_if<QString>(&list.value))
        return string(*text);
    const quint64 uid = std::get<PropertyList::UID>(list.value).value;
    const qsizetype size = sizeOf(uid);
    return static_cast<char>(uidMarker | static_cast<char>(size - 1)) + bigEndian(uid, size);
}

} // namespace

QByteArray BinaryPropertyListWriter::write(const PropertyList& list) {
    return add(list, 0) ? assembled() : QByteArray();
}

bool BinaryPropertyListWriter::add(const PropertyList& list, int levels) {
    const PropertyList::Array* array = list.array();
    const PropertyList::Dictionary* dictionary = list.dictionary();
    if (!array && !dictionary)
        return addScalar(scalar(list));
    if (levels == PropertyListGuard::maximumLevels)
        return false;
    return array ? addArray(*array, levels) : addDictionary(*dictionary, levels);
}

bool BinaryPropertyListWriter::addArray(const PropertyList::Array& array, int levels) {
    const qsizetype self = m_objects.size();
    m_objects.append({counted(arrayMarker, array.size()), {}});
    QList<quint32> references;
    references.reserve(array.size());
    for (const PropertyList& element : array) {
        if (!add(element, levels + 1))
            return false;
        references.append(m_lastAdded);
    }
    m_objects[self].references = std::move(references);
    m_lastAdded = static_cast<quint32>(self);
    return true;
}

bool BinaryPropertyListWriter::addDictionary(const PropertyList::Dictionary& dictionary, int levels) {
    const qsizetype self = m_objects.size();
    m_objects.append({counted(dictionaryMarker, dictionary.size()), {}});
    QList<quint32> references;
    references.reserve(2 * dictionary.size());
    for (auto entry = dictionary.keyBegin(); entry != dictionary.keyEnd(); ++entry) {
        if (!addScalar(string(*entry)))
            return false;
        references.append(m_lastAdded);
    }
    for (const PropertyList& element : dictionary) {
        if (!add(element, levels + 1))
            return false;
        references.append(m_lastAdded);
    }
    m_objects[self].references = std::move(references);
    m_lastAdded = static_cast<quint32>(self);
    return true;
}

bool BinaryPropertyListWriter::addScalar(const QByteArray& bytes) {
    const auto known = m_scalars.constFind(bytes);
    if (known != m_scalars.constEnd()) {
        m_lastAdded = known.value();
        return true;
    }
    if (static_cast<quint64>(m_objects.size()) >= PropertyListGuard::maximumValues)
        return false;
    m_lastAdded = static_cast<quint32>(m_objects.size());
    m_scalars.insert(bytes, m_lastAdded);
    m_objects.append({bytes, {}});
    return true;
}

QByteArray BinaryPropertyListWriter::assembled() const {
    const qsizetype referenceSize = sizeOf(static_cast<quint64>(m_objects.size() - 1));
    QByteArray bytes("bplist00");
    QList<qsizetype> offsets;
    offsets.reserve(m_objects.size());
    for (const Object& object : m_objects) {
        offsets.append(bytes.size());
        bytes += object.bytes;
        for (const quint32 reference : object.references)
            bytes += bigEndian(reference, referenceSize);
    }
    const auto tableBegin = static_cast<quint64>(bytes.size());
    const qsizetype offsetSize = sizeOf(tableBegin);
    for (const qsizetype offset : offsets)
        bytes += bigEndian(static_cast<quint64>(offset), offsetSize);
    bytes += QByteArray(6, '\0');
    bytes += static_cast<char>(offsetSize);
    bytes += static_cast<char>(referenceSize);
    bytes += bigEndian(static_cast<quint64>(m_objects.size()));
    bytes += bigEndian(0);
    bytes += bigEndian(tableBegin);
    return bytes;
}

} // namespace DockCore
