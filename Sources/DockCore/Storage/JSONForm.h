#pragma once

#include <QDateTime>
#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QMap>
#include <QSet>
#include <QString>

#include <optional>
#include <utility>

namespace DockCore {

/// How a value of one type stands in a JSON file. `read` takes that form alone: nothing is converted from another type.
/// A type without a form of its own is a record with `toJson` and `fromJson`. Any thread may call it.
template <typename Value>
struct JSONForm {
    static QJsonValue write(const Value& value) { return value.toJson(); }
    static std::optional<Value> read(const QJsonValue& json) { return Value::fromJson(json); }
};

template <>
struct JSONForm<bool> {
    static QJsonValue write(bool value) { return value; }
    static std::optional<bool> read(const QJsonValue& json);
};

/// Exact over 64 bits.
template <>
struct JSONForm<qint64> {
    static QJsonValue write(qint64 value) { return value; }
    static std::optional<qint64> read(const QJsonValue& json);
};

template <>
struct JSONForm<double> {
    static QJsonValue write(double value) { return value; }
    static std::optional<double> read(const QJsonValue& json);
};

template <>
struct JSONForm<QString> {
    static QJsonValue write(const QString& value) { return value; }
    static std::optional<QString> read(const QJsonValue& json);
};

/// "yyyy-MM-ddTHH:mm:ssZ" in UTC; a date outside the years 1 to 9999 is written as the nearest one inside them. On
/// reading an offset may stand for the "Z".
template <>
struct JSONForm<QDateTime> {
    static QJsonValue write(const QDateTime& value);
    static std::optional<QDateTime> read(const QJsonValue& json);
};

template <typename Value>
struct JSONForm<QList<Value>> {
    static QJsonValue write(const QList<Value>& values) {
        QJsonArray array;
        for (const Value& value : values)
            array.append(JSONForm<Value>::write(value));
        return array;
    }
    static std::optional<QList<Value>> read(const QJsonValue& json) {
        if (!json.isArray())
            return std::nullopt;
        const QJsonArray array = json.toArray();
        QList<Value> values;
        values.reserve(array.size());
        for (const QJsonValue element : array) {
            std::optional<Value> value = JSONForm<Value>::read(element);
            if (!value)
                return std::nullopt;
            values.append(*std::move(value));
        }
        return values;
    }
};

/// The value in the form of its type. `keys` is for the maps that are read as a part of it.
template <typename Value>
std::optional<Value> readJSON(const QJsonValue& json, QSet<QString>* keys = nullptr) {
    if constexpr (requires { JSONForm<Value>::read(json, keys); })
        return JSONForm<Value>::read(json, keys);
    else
        return JSONForm<Value>::read(json);
}

/// Both kinds of map are objects. Maps that are read with the same `keys` share one string for each key, which in a
/// file that repeats its keys saves most of the memory and some of the time.
template <typename Map>
struct JSONMapForm {
    static QJsonValue write(const Map& map) {
        QJsonObject object;
        for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
            object.insert(entry.key(), JSONForm<typename Map::mapped_type>::write(entry.value()));
        return object;
    }
    static std::optional<Map> read(const QJsonValue& json, QSet<QString>* keys = nullptr) {
        if (!json.isObject())
            return std::nullopt;
        const QJsonObject object = json.toObject();
        Map map;
        if constexpr (requires { map.reserve(object.size()); })
            map.reserve(object.size());
        for (auto entry = object.constBegin(); entry != object.constEnd(); ++entry) {
            auto value = readJSON<typename Map::mapped_type>(entry.value(), keys);
            if (!value)
                return std::nullopt;
            map.insert(keys ? *keys->insert(entry.key()) : entry.key(), *std::move(value));
        }
        return map;
    }
};

template <typename Value>
struct JSONForm<QHash<QString, Value>> : JSONMapForm<QHash<QString, Value>> {};
template <typename Value>
struct JSONForm<QMap<QString, Value>> : JSONMapForm<QMap<QString, Value>> {};

} // namespace DockCore
