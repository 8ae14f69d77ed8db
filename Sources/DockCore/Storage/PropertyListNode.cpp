#include "DockCore/Storage/PropertyListNode.h"

#include <QByteArrayView>

#include <bit>
#include <clocale>
#if __has_include(<xlocale.h>)
#include <xlocale.h>
#endif

namespace DockCore::PropertyListNode {

namespace {

constexpr QByteArrayView header("bplist00");
constexpr QByteArrayView byteOrderMark("\xEF\xBB\xBF");

/// libplist reads reals with the decimal point of the thread's locale; property lists always have a full stop.
class NeutralNumbers {
public:
    NeutralNumbers()
        : m_previous(uselocale(neutral())) {}
    ~NeutralNumbers() { uselocale(m_previous); }
    NeutralNumbers(const NeutralNumbers&) = delete;
    NeutralNumbers& operator=(const NeutralNumbers&) = delete;

private:
    static locale_t neutral() {
        static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
        return locale;
    }

    locale_t m_previous;
};

QByteArray binary(plist_t node) {
    char* written = nullptr;
    uint32_t length = 0;
    plist_to_bin(node, &written, &length);
    const Memory<char> owner(written);
    return {written, static_cast<qsizetype>(length)};
}

} // namespace

Node fromBinary(const QByteArray& bytes) {
    plist_t node = nullptr;
    plist_from_bin(bytes.constData(), static_cast<uint32_t>(bytes.size()), &node);
    return Node(node);
}

Node fromXML(const QByteArray& bytes) {
    const NeutralNumbers numbers;
    const QByteArrayView text =
        QByteArrayView(bytes).sliced(bytes.startsWith(byteOrderMark) ? byteOrderMark.size() : 0);
    plist_t node = nullptr;
    plist_from_xml(text.data(), static_cast<uint32_t>(text.size()), &node);
    return Node(node);
}

QByteArray toXML(const Node& node) {
    if (!node)
        return {};
    const NeutralNumbers numbers;
    char* written = nullptr;
    uint32_t length = 0;
    plist_to_xml(node.get(), &written, &length);
    const Memory<char> owner(written);
    return {written, static_cast<qsizetype>(length)};
}

Node ofObject(const QByteArray& object) {
    QByteArray bytes = header.toByteArray() + object;
    const auto tableBegin = static_cast<char>(bytes.size());
    bytes += static_cast<char>(header.size());
    // Of the trailer's numbers only these are not zero: the sizes of an offset and a reference, the count, the table.
    bytes += QByteArray(6, '\0') + "\x01\x01" + QByteArray(7, '\0') + '\x01' + QByteArray(15, '\0') + tableBegin;
    return fromBinary(bytes);
}

QByteArray object(plist_t node) {
    return binary(node).sliced(header.size());
}

QList<double> datesOf(plist_t array) {
    const QByteArray bytes = binary(array);
    const auto number = [&bytes](quint64 place, quint64 size) {
        quint64 value = 0;
        for (quint64 i = 0; i < size; ++i)
            value = value << 8 | static_cast<uchar>(bytes[static_cast<qsizetype>(place + i)]);
        return value;
    };
    const quint64 trailer = static_cast<quint64>(bytes.size()) - 32;
    const quint64 offsetSize = number(trailer + 6, 1);
    const quint64 referenceSize = number(trailer + 7, 1);
    const quint64 offsets = number(trailer + 24, 8);
    const auto placeOf = [&](quint64 object) { return number(offsets + object * offsetSize, offsetSize); };

    quint64 references = placeOf(number(trailer + 16, 8)) + 1;
    const quint64 count = plist_array_get_size(array);
    // A count that the marker has no room for follows it as an integer.
    constexpr quint64 largestInMarker = 14;
    if (count > largestInMarker)
        references += 1 + (1ULL << (number(references, 1) & 0x0F));
    QList<double> seconds;
    seconds.reserve(static_cast<qsizetype>(count));
    for (quint64 i = 0; i < count; ++i) {
        const quint64 date = placeOf(number(references + i * referenceSize, referenceSize));
        seconds.append(std::bit_cast<double>(number(date + 1, sizeof(double))));
    }
    return seconds;
}

} // namespace DockCore::PropertyListNode
