#pragma once

#include "DockCore/Storage/JSONForm.h"

#include <QStringView>

#include <type_traits>

namespace DockCore {

/// Records as JSON objects. The keys of a record are listed once, for reading and for writing, by a function object
/// that takes the keys and the record:
///
///     constexpr auto profileKeys = [](auto& keys, auto& profile) {
///         keys.required(u"name", profile.name);
///         keys.optional(u"note", profile.note);
///         keys.added(u"color", profile.color, Color::blue);
///     };
///
/// Keys that are not listed are ignored. A key that was required once stays required; one that a later version brings
/// is `added`, so that the files of the versions before still read.
namespace JSONRecord {

class Reader {
public:
    Reader(const QJsonValue& json, QSet<QString>* mapKeys)
        : m_object(json.toObject())
        , m_mapKeys(mapKeys)
        , m_isValid(json.isObject()) {}

    template <typename Value>
    void required(QStringView key, Value& member) {
        std::optional<Value> value = readJSON<Value>(m_object.value(key), m_mapKeys);
        m_isValid = m_isValid && value;
        if (value)
            member = *std::move(value);
    }
    /// May be left out or null.
    template <typename Value>
    void optional(QStringView key, std::optional<Value>& member) {
        if (const QJsonValue json = m_object.value(key); !json.isUndefined() && !json.isNull())
            required(key, member.emplace());
    }
    /// Has its default where it is left out or null.
    template <typename Value>
    void added(QStringView key, Value& member, const std::type_identity_t<Value>& fallback) {
        std::optional<Value> value;
        optional(key, value);
        member = std::move(value).value_or(fallback);
    }

    /// False once a required key was missing or a value was of a wrong type.
    bool isValid() const { return m_isValid; }

private:
    QJsonObject m_object;
    QSet<QString>* m_mapKeys;
    bool m_isValid;
};

class Writer {
public:
    template <typename Value>
    void required(QStringView key, const Value& member) {
        m_object.insert(key, JSONForm<Value>::write(member));
    }
    template <typename Value>
    void optional(QStringView key, const std::optional<Value>& member) {
        if (member)
            required(key, *member);
    }
    /// Left out at its default, so that files are those of the version before until the key is used.
    template <typename Value>
    void added(QStringView key, const Value& member, const std::type_identity_t<Value>& fallback) {
        if (member != fallback)
            required(key, member);
    }

    const QJsonObject& object() const { return m_object; }

private:
    QJsonObject m_object;
};

/// The record, unless a key is missing or a value of a wrong type. Its maps share the strings in `mapKeys`.
template <typename Record, typename Keys>
std::optional<Record> read(const QJsonValue& json, const Keys& keys, QSet<QString>* mapKeys = nullptr) {
    Record record;
    Reader reader(json, mapKeys);
    keys(reader, record);
    return reader.isValid() ? std::optional(std::move(record)) : std::nullopt;
}

template <typename Record, typename Keys>
QJsonValue write(const Record& record, const Keys& keys) {
    Writer writer;
    keys(writer, record);
    return writer.object();
}

} // namespace JSONRecord
} // namespace DockCore
