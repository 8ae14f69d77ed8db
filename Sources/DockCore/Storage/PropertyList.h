#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>

#include <optional>
#include <variant>

namespace DockCore {

/// A property-list value, as the Dock's preferences and snapshot files hold them. It keeps every type apart, so that
/// what was read is written back as the same value. A plain value; any thread may use its own copy.
struct PropertyList {
    using Array = QList<PropertyList>;
    using Dictionary = QMap<QString, PropertyList>;
    /// A moment, in seconds since 2001-01-01 00:00 UTC. XML files carry whole seconds only.
    struct Date {
        double seconds = 0;
        bool operator==(const Date&) const = default;
    };
    struct UID {
        quint64 value = 0;
        bool operator==(const UID&) const = default;
    };
    enum class Format { xml, binary };

    /// Integers are `qint64` wherever they fit; `quint64` holds only those above its range.
    std::variant<bool, qint64, quint64, double, QString, QByteArray, Date, UID, Array, Dictionary> value = false;

    bool operator==(const PropertyList& other) const;

    /// The value as the named type, or nothing when it is of another.
    const QString* string() const { return std::get_if<QString>(&value); }
    const Array* array() const { return std::get_if<Array>(&value); }
    const Dictionary* dictionary() const { return std::get_if<Dictionary>(&value); }

    /// The property list in `bytes`, XML or binary; nothing when they are neither, are damaged, refer to themselves,
    /// nest deeper than 512 levels or unfold to more than five million values.
    static std::optional<PropertyList> parse(const QByteArray& bytes);
    /// The text under `key` of the dictionary in `bytes`, without unfolding the rest of it; nothing when there is none.
    static std::optional<QString> string(const QByteArray& bytes, const QString& key);
    /// The format that `bytes` announce by their first bytes; `xml` when they are not binary.
    static Format format(const QByteArray& bytes);
    /// The dictionary in the file at `path`; nothing when it cannot be read, is over 256 MB or holds something else.
    static std::optional<Dictionary> readDictionary(const QString& path);

    /// The bytes of this value in `format`, always the same ones for equal values; empty when it could not be read
    /// back: it nests too deep, or holds what the format cannot, such as control characters in XML.
    QByteArray serialize(Format format) const;
};

} // namespace DockCore
