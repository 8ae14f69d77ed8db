#include "DockCore/Storage/PropertyList.h"

#include "DockCore/Storage/BinaryPropertyListWriter.h"
#include "DockCore/Storage/BoundedFile.h"
#include "DockCore/Storage/PropertyListGuard.h"
#include "DockCore/Storage/PropertyListNode.h"

#include <QtEndian>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace DockCore {

namespace {

using Format = PropertyList::Format;

using PropertyListNode::Memory;
using PropertyListNode::Node;

const QString uidKey = u"CF$UID"_s;
constexpr qint64 largestUID = 0xFFFFFFFF;
constexpr qint64 largestFile = 256LL * 1024 * 1024;

QByteArray bigEndian(quint64 number) {
    QByteArray bytes(sizeof number, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

/// Null when the bytes are no property list, or one that it is not safe to unfold.
Node nodeOfBytes(const QByteArray& bytes) {
    if (bytes.size() > largestFile)
        return nullptr;
    if (PropertyList::format(bytes) == Format::binary)
        return PropertyListGuard::acceptsBinary(bytes) ? PropertyListNode::fromBinary(bytes) : nullptr;
    return PropertyListGuard::acceptsXML(bytes) ? PropertyListNode::fromXML(bytes) : nullptr;
}

QString textOf(plist_t node) {
    uint64_t length = 0;
    const char* text = plist_get_string_ptr(node, &length);
    return QString::fromUtf8(text, static_cast<qsizetype>(length));
}

// Reading: nodes to values. Nothing as soon as one value cannot be carried.

std::optional<PropertyList> valueOf(plist_t node, Format format, int levels);

PropertyList integerOf(plist_t node) {
    uint64_t number = 0;
    plist_get_uint_val(node, &number);
    constexpr char sixteenBytes = 0x14;
    if (number > quint64(std::numeric_limits<qint64>::max()) && PropertyListNode::object(node).startsWith(sixteenBytes))
        return {quint64(number)};
    return {static_cast<qint64>(number)};
}

PropertyList dateOf(plist_t node) {
    const QByteArray object = PropertyListNode::object(node);
    return {PropertyList::Date{std::bit_cast<double>(qFromBigEndian<quint64>(object.constData() + 1))}};
}

QList<plist_t> elementsOf(plist_t array) {
    plist_array_iter iterator = nullptr;
    plist_array_new_iter(array, &iterator);
    const Memory<void> owner(iterator);
    QList<plist_t> elements;
    elements.reserve(plist_array_get_size(array));
    plist_t element = nullptr;
    for (plist_array_next_item(array, iterator, &element); element; plist_array_next_item(array, iterator, &element))
        elements.append(element);
    return elements;
}

std::optional<PropertyList> arrayOf(plist_t node, Format format, int levels) {
    const QList<plist_t> elements = elementsOf(node);
    const auto isDate = [](plist_t element) { return plist_get_node_type(element) == PLIST_DATE; };
    PropertyList::Array array;
    array.reserve(elements.size());
    if (!elements.isEmpty() && std::ranges::all_of(elements, isDate)) {
        for (const double seconds : PropertyListNode::datesOf(node))
            array.append({PropertyList::Date{seconds}});
        return PropertyList{std::move(array)};
    }
    for (plist_t element : elements) {
        auto value = valueOf(element, format, levels + 1);
        if (!value)
            return std::nullopt;
        array.append(*std::move(value));
    }
    return PropertyList{std::move(array)};
}

std::optional<PropertyList> dictionaryOf(plist_t node, Format format, int levels) {
    plist_dict_iter iterator = nullptr;
    plist_dict_new_iter(node, &iterator);
    const Memory<void> owner(iterator);
    PropertyList::Dictionary dictionary;
    while (true) {
        char* written = nullptr;
        plist_t element = nullptr;
        plist_dict_next_item(node, iterator, &written, &element);
        const Memory<char> key(written);
        if (!element)
            break;
        auto value = valueOf(element, format, levels + 1);
        if (!value)
            return std::nullopt;
        dictionary.insert(QString::fromUtf8(key.get()), *std::move(value));
    }
    // In XML, a UID is written as a dictionary of this one form.
    if (format == Format::xml && dictionary.size() == 1 && dictionary.firstKey() == uidKey) {
        const auto* number = std::get_if<qint64>(&dictionary.first().value);
        if (number && *number >= 0 && *number <= largestUID)
            return PropertyList{PropertyList::UID{static_cast<quint64>(*number)}};
    }
    return PropertyList{std::move(dictionary)};
}

std::optional<PropertyList> valueOf(plist_t node, Format format, int levels) {
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
        uint8_t flag = 0;
        plist_get_bool_val(node, &flag);
        return PropertyList{flag != 0};
    }
    case PLIST_UINT:
        return integerOf(node);
    case PLIST_REAL: {
        double number = 0;
        plist_get_real_val(node, &number);
        return PropertyList{number};
    }
    case PLIST_STRING:
        return PropertyList{textOf(node)};
    case PLIST_DATA: {
        uint64_t length = 0;
        const char* data = plist_get_data_ptr(node, &length);
        return PropertyList{QByteArray(data, static_cast<qsizetype>(length))};
    }
    case PLIST_DATE:
        return dateOf(node);
    case PLIST_UID: {
        uint64_t number = 0;
        plist_get_uid_val(node, &number);
        return PropertyList{PropertyList::UID{number}};
    }
    case PLIST_ARRAY:
        return levels < PropertyListGuard::maximumLevels ? arrayOf(node, format, levels) : std::nullopt;
    case PLIST_DICT:
        return levels < PropertyListGuard::maximumLevels ? dictionaryOf(node, format, levels) : std::nullopt;
    default:
        return std::nullopt;
    }
}

// Writing XML: values to nodes. Null as soon as one value cannot be written.

Node nodeOf(const PropertyList& list, int levels);

Node integerNode(quint64 number) {
    constexpr char sixteenBytes = 0x14;
    if (number <= quint64(std::numeric_limits<qint64>::max()))
        return Node(plist_new_uint(number));
    return PropertyListNode::ofObject(sixteenBytes + QByteArray(8, '\0') + bigEndian(number));
}

Node dateNode(const PropertyList::Date& date) {
    constexpr char dateMarker = 0x33;
    return PropertyListNode::ofObject(dateMarker + bigEndian(std::bit_cast<quint64>(std::floor(date.seconds))));
}

bool isCarried(const QString& text) {
    for (const QChar character : text) {
        const char16_t unit = character.unicode();
        const bool isControl = unit < 0x20 && unit != u'\t' && unit != u'\n' && unit != u'\r';
        if (isControl || unit == 0xFFFE || unit == 0xFFFF)
            return false;
    }
    return true;
}

Node arrayNode(const PropertyList::Array& array, int levels) {
    Node node(plist_new_array());
    for (const PropertyList& element : array) {
        Node child = nodeOf(element, levels + 1);
        if (!child)
            return nullptr;
        plist_array_append_item(node.get(), child.release());
    }
    return node;
}

Node dictionaryNode(const PropertyList::Dictionary& dictionary, int levels) {
    Node node(plist_new_dict());
    for (auto entry = dictionary.cbegin(); entry != dictionary.cend(); ++entry) {
        Node child = nodeOf(entry.value(), levels + 1);
        if (!child || !isCarried(entry.key()))
            return nullptr;
        plist_dict_set_item(node.get(), entry.key().toUtf8().constData(), child.release());
    }
    return node;
}

Node nodeOf(const PropertyList& list, int levels) {
    if (const auto* flag = std::get_if<bool>(&list.value))
        return Node(plist_new_bool(*flag));
    if (const auto* number = std::get_if<qint64>(&list.value))
        return Node(plist_new_uint(static_cast<uint64_t>(*number)));
    if (const auto* number = std::get_if<quint64>(&list.value))
        return integerNode(*number);
    if (const auto* number = std::get_if<double>(&list.value))
        return Node(plist_new_real(*number));
    if (const auto* text = std::get_if<QString>(&list.value))
        return Node(isCarried(*text) ? plist_new_string(text->toUtf8().constData()) : nullptr);
    if (const auto* data = std::get_if<QByteArray>(&list.value))
        return Node(plist_new_data(data->constData(), static_cast<uint64_t>(data->size())));
    if (const auto* date = std::get_if<PropertyList::Date>(&list.value))
        return dateNode(*date);
    if (const auto* uid = std::get_if<PropertyList::UID>(&list.value))
        return Node(plist_new_uid(uid->value));
    if (levels >= PropertyListGuard::maximumLevels)
        return nullptr;
    if (const auto* array = std::get_if<PropertyList::Array>(&list.value))
        return arrayNode(*array, levels);
    return dictionaryNode(std::get<PropertyList::Dictionary>(list.value), levels);
}

/// What reading `list` back from XML ought to give.
PropertyList withWholeSeconds(const PropertyList& list) {
    if (const auto* date = std::get_if<PropertyList::Date>(&list.value))
        return {PropertyList::Date{std::floor(date->seconds)}};
    PropertyList result = list;
    if (auto* array = std::get_if<PropertyList::Array>(&result.value)) {
        for (PropertyList& element : *array)
            element = withWholeSeconds(element);
    } else if (auto* dictionary = std::get_if<PropertyList::Dictionary>(&result.value)) {
        for (PropertyList& element : *dictionary)
            element = withWholeSeconds(element);
    }
    return result;
}

} // namespace

bool PropertyList::operator==(const PropertyList& other) const {
    const auto* number = std::get_if<double>(&value);
    const auto* otherNumber = std::get_if<double>(&other.value);
    if (number && otherNumber && std::isnan(*number) && std::isnan(*otherNumber))
        return true;
    return value == other.value;
}

std::optional<PropertyList> PropertyList::parse(const QByteArray& bytes) {
    const Node node = nodeOfBytes(bytes);
    return node ? valueOf(node.get(), format(bytes), 0) : std::nullopt;
}

std::optional<QString> PropertyList::string(const QByteArray& bytes, const QString& key) {
    const Node node = nodeOfBytes(bytes);
    if (!node || plist_get_node_type(node.get()) != PLIST_DICT)
        return std::nullopt;
    plist_t entry = plist_dict_get_item(node.get(), key.toUtf8().constData());
    if (!entry || plist_get_node_type(entry) != PLIST_STRING)
        return std::nullopt;
    return textOf(entry);
}

PropertyList::Format PropertyList::format(const QByteArray& bytes) {
    return bytes.startsWith("bplist") ? Format::binary : Format::xml;
}

std::optional<PropertyList::Dictionary> PropertyList::readDictionary(const QString& path) {
    const std::optional<PropertyList> list = parse(BoundedFile::read(path, largestFile).bytes);
    if (!list || !list->dictionary())
        return std::nullopt;
    return *list->dictionary();
}

QByteArray PropertyList::serialize(Format format) const {
    const bool isBinary = format == Format::binary;
    const QByteArray bytes =
        isBinary ? BinaryPropertyListWriter().write(*this) : PropertyListNode::toXML(nodeOf(*this, 0));
    // Either format has values that it cannot hold, and a file that reads back as something else would be believed.
    if (parse(bytes) != (isBinary ? *this : withWholeSeconds(*this)))
        return {};
    return bytes;
}

} // namespace DockCore
