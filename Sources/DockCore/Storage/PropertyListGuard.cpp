#include "DockCore/Storage/PropertyListGuard.h"

#include <QByteArrayView>
#include <QChar>

#include <algorithm>
#include <optional>
#include <vector>

namespace DockCore::PropertyListGuard {

namespace {

constexpr quint64 headerSize = 8;
constexpr quint64 trailerSize = 32;

quint64 bigEndian(const QByteArray& bytes, quint64 offset, quint64 size) {
    const char* byte = bytes.constData() + offset;
    quint64 value = 0;
    for (const char* end = byte + size; byte != end; ++byte)
        value = value << 8 | static_cast<unsigned char>(*byte);
    return value;
}

/// The objects of a binary property list and what each one unfolds to.
class BinaryObjects {
public:
    explicit BinaryObjects(const QByteArray& bytes)
        : m_bytes(bytes) {}

    bool accepted() { return readTrailer() && unfold(); }

private:
    struct Object {
        enum class State : quint8 { unseen, open, closed };
        State state = State::unseen;
        quint16 levels = 0;
        quint32 values = 0;
        quint64 content = 0;
    };

    /// One object as its marker announces it.
    struct Shape {
        quint64 firstReference = 0;
        quint64 references = 0;
        /// How many of the references, from the first, are keys.
        quint64 keys = 0;
        quint64 content = 0;
        bool isContainer = false;
        bool isString = false;
    };

    /// A container that is being unfolded, and its next reference to follow.
    struct Open {
        quint64 object = 0;
        Shape shape;
        quint64 next = 0;
    };

    bool readTrailer();
    bool unfold();
    bool fold(Object& object, const Object& child) const;
    std::optional<Shape> shape(quint64 object) const;
    bool measureContainer(Shape& shape, quint64 begin, quint64 count, unsigned kind) const;
    bool holdsWholeCharacters(quint64 begin, quint64 units) const;
    bool holdsASCII(quint64 begin, quint64 size) const;

    /// Whether `size` bytes from `offset` on lie among the objects.
    bool fits(quint64 offset, quint64 size) const { return offset <= m_tableBegin && size <= m_tableBegin - offset; }

    const QByteArray& m_bytes;
    quint64 m_offsetSize = 0;
    quint64 m_referenceSize = 0;
    quint64 m_top = 0;
    quint64 m_tableBegin = 0;
    std::vector<Object> m_objects;
};

bool BinaryObjects::readTrailer() {
    const auto size = static_cast<quint64>(m_bytes.size());
    if (size < headerSize + trailerSize)
        return false;
    const quint64 trailer = size - trailerSize;
    m_offsetSize = bigEndian(m_bytes, trailer + 6, 1);
    m_referenceSize = bigEndian(m_bytes, trailer + 7, 1);
    const quint64 count = bigEndian(m_bytes, trailer + 8, 8);
    m_top = bigEndian(m_bytes, trailer + 16, 8);
    m_tableBegin = bigEndian(m_bytes, trailer + 24, 8);
    if (m_offsetSize < 1 || m_offsetSize > 8 || m_referenceSize < 1 || m_referenceSize > 8)
        return false;
    if (count > maximumValues || m_top >= count)
        return false;
    if (m_tableBegin < headerSize || m_tableBegin > trailer || count * m_offsetSize > trailer - m_tableBegin)
        return false;
    m_objects.resize(count);
    return true;
}

/// Counts what the top object unfolds to, each object only once and without recursion.
bool BinaryObjects::unfold() {
    std::vector<Open> path;
    std::optional<quint64> enter = m_top;
    while (true) {
        if (enter) {
            const std::optional<Shape> entered = shape(*enter);
            if (!entered || path.size() > maximumLevels)
                return false;
            Object& object = m_objects[*enter];
            object.state = Object::State::open;
            object.levels = entered->isContainer ? 1 : 0;
            object.values = 1;
            object.content = entered->content;
            path.push_back({*enter, *entered, 0});
            enter.reset();
        }
        Open& current = path.back();
        if (current.next == current.shape.references) {
            m_objects[current.object].state = Object::State::closed;
            path.pop_back();
            if (path.empty())
                return true;
            continue;
        }
        const quint64 child =
            bigEndian(m_bytes, current.shape.firstReference + current.next * m_referenceSize, m_referenceSize);
        if (child >= m_objects.size() || m_objects[child].state == Object::State::open)
            return false;
        if (m_objects[child].state == Object::State::unseen) {
            enter = child;
            continue;
        }
        if (current.next < current.shape.keys) {
            const std::optional<Shape> key = shape(child);
            if (!key || !key->isString)
                return false;
        }
        if (!fold(m_objects[current.object], m_objects[child]))
            return false;
        ++current.next;
    }
}

bool BinaryObjects::fold(Object& object, const Object& child) const {
    const quint64 values = quint64(object.values) + child.values;
    object.content += child.content;
    object.levels = std::max(object.levels, static_cast<quint16>(child.levels + 1));
    if (values > maximumValues || object.content > maximumContent || object.levels > maximumLevels)
        return false;
    object.values = static_cast<quint32>(values);
    return true;
}

std::optional<BinaryObjects::Shape> BinaryObjects::shape(quint64 object) const {
    const quint64 offset = bigEndian(m_bytes, m_tableBegin + object * m_offsetSize, m_offsetSize);
    if (offset < headerSize || !fits(offset, 1))
        return std::nullopt;
    const auto marker = static_cast<unsigned char>(m_bytes[static_cast<qsizetype>(offset)]);
    const unsigned kind = marker >> 4;
    const unsigned low = marker & 15U;
    quint64 begin = offset + 1;
    Shape result;

    switch (marker) {
    case 0x08:
    case 0x09:
        return result;
    case 0x10:
    case 0x11:
    case 0x12:
    case 0x13:
    case 0x22:
    case 0x23:
    case 0x33:
        return fits(begin, 1ULL << low) ? std::optional(result) : std::nullopt;
    case 0x14:
        // The parser takes the lower half of it only.
        return fits(begin, 16) && bigEndian(m_bytes, begin, 8) == 0 ? std::optional(result) : std::nullopt;
    default:
        break;
    }
    if (kind == 0x8) {
        const bool isCarried = low < 8 && fits(begin, low + 1) && bigEndian(m_bytes, begin, low + 1) <= 0xFFFFFFFF;
        return isCarried ? std::optional(result) : std::nullopt;
    }

    quint64 count = low;
    if (low == 15) {
        if (!fits(begin, 1))
            return std::nullopt;
        const auto sizeMarker = static_cast<unsigned char>(m_bytes[static_cast<qsizetype>(begin)]);
        const quint64 size = 1ULL << (sizeMarker & 15U);
        if (sizeMarker >> 4 != 1 || size > 8 || !fits(begin + 1, size))
            return std::nullopt;
        count = bigEndian(m_bytes, begin + 1, size);
        begin += 1 + size;
    }
    if (count > m_tableBegin)
        return std::nullopt;
    result.content = count;
    switch (kind) {
    case 0x4:
        return fits(begin, count) ? std::optional(result) : std::nullopt;
    case 0x5:
        result.isString = true;
        return holdsASCII(begin, count) ? std::optional(result) : std::nullopt;
    case 0x6:
        result.isString = true;
        result.content = 2 * count;
        return holdsWholeCharacters(begin, count) ? std::optional(result) : std::nullopt;
    case 0xA:
    case 0xD:
        return measureContainer(result, begin, count, kind) ? std::optional(result) : std::nullopt;
    default:
        return std::nullopt;
    }
}

bool BinaryObjects::measureContainer(Shape& shape, quint64 begin, quint64 count, unsigned kind) const {
    shape.isContainer = true;
    shape.content = 0;
    shape.firstReference = begin;
    shape.keys = kind == 0xD ? count : 0;
    shape.references = count + shape.keys;
    return fits(begin, shape.references * m_referenceSize);
}

bool BinaryObjects::holdsASCII(quint64 begin, quint64 size) const {
    if (!fits(begin, size))
        return false;
    const QByteArrayView characters = QByteArrayView(m_bytes).sliced(qsizetype(begin), qsizetype(size));
    return std::all_of(characters.begin(), characters.end(), [](char character) { return character > 0; });
}

/// Whether the UTF-16 text pairs its surrogates and has no null character, at which the parser would end it.
bool BinaryObjects::holdsWholeCharacters(quint64 begin, quint64 units) const {
    if (!fits(begin, 2 * units))
        return false;
    bool inPair = false;
    for (quint64 index = 0; index < units; ++index) {
        const auto unit = static_cast<char16_t>(bigEndian(m_bytes, begin + 2 * index, 2));
        if (unit == 0 || QChar::isLowSurrogate(unit) != inPair)
            return false;
        inPair = QChar::isHighSurrogate(unit);
    }
    return !inPair;
}

bool startsAt(const QByteArray& bytes, qsizetype index, QByteArrayView text) {
    return bytes.size() - index >= text.size() && std::equal(text.begin(), text.end(), bytes.cbegin() + index);
}

/// Whether the tag at `index`, with or without its slash, is that of an array or a dictionary.
bool isContainerTag(const QByteArray& bytes, qsizetype nameIndex) {
    return startsAt(bytes, nameIndex, "array") || startsAt(bytes, nameIndex, "dict");
}

} // namespace

bool acceptsBinary(const QByteArray& bytes) {
    return BinaryObjects(bytes).accepted();
}

bool acceptsXML(const QByteArray& bytes) {
    if (bytes.contains('\0') || !bytes.isValidUtf8())
        return false;
    quint64 values = 0;
    int levels = 0;
    qsizetype index = 0;
    while ((index = bytes.indexOf('<', index)) >= 0) {
        ++index;
        // What stands in comments and the like must not count, least of all as the end of something.
        if (startsAt(bytes, index, "!--")) {
            index = bytes.indexOf("-->", index + 3);
        } else if (startsAt(bytes, index, "![CDATA[")) {
            index = bytes.indexOf("]]>", index);
        } else if (startsAt(bytes, index, "?")) {
            index = bytes.indexOf("?>", index);
        } else if (startsAt(bytes, index, "/")) {
            if (isContainerTag(bytes, index + 1))
                levels = std::max(0, levels - 1);
        } else {
            ++values;
            const qsizetype end = bytes.indexOf('>', index);
            if (end < 0 || values > maximumValues)
                return false;
            if (isContainerTag(bytes, index) && bytes[end - 1] != '/')
                ++levels;
            index = end;
        }
        if (index < 0 || levels > maximumLevels)
            return false;
    }
    return true;
}

} // namespace DockCore::PropertyListGuard
