#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QTest>

/// Rows for the reading of a record: one that holds everything, then each key left out, null, and of every wrong type.
namespace Strictness {

inline QList<std::pair<const char*, QJsonValue>> wrongValues(const QJsonValue& right) {
    using Named = std::pair<const char*, QJsonValue>;
    const Named text = {"a string", QStringLiteral("7")};
    const Named yes = {"true", true};
    const Named one = {"the number 1", 1};
    const Named fraction = {"the number 1.5", 1.5};
    const Named array = {"an array of numbers", QJsonArray{1, 2}};
    const Named mixed = {"an array with a null", QJsonArray{QStringLiteral("a"), QJsonValue::Null}};
    const Named empty = {"an empty array", QJsonArray()};
    const Named object = {"an object", QJsonObject{{QStringLiteral("a"), 1}}};
    switch (right.type()) {
    case QJsonValue::Bool:
        return {text, one, {"the number 0", 0}, fraction, empty, array, object};
    case QJsonValue::Double:
        if (right.toInteger(0) == right.toInteger(1))
            return {text, yes, fraction, empty, array, object, {"a number over 63 bits", 9.3e18}};
        return {text, yes, empty, array, object};
    case QJsonValue::String:
        return {yes, one, fraction, empty, array, object};
    case QJsonValue::Array:
        return {text, yes, one, fraction, array, mixed, object};
    case QJsonValue::Object:
        return {text, yes, one, fraction, empty, array};
    default:
        return {};
    }
}

/// `valid` holds every key, a whole number where an integer is meant. Adds the columns "json" and "reads".
inline void addRows(const QJsonObject& valid, const QStringList& optional) {
    QTest::addColumn<QJsonValue>("json");
    QTest::addColumn<bool>("reads");
    QTest::newRow("every key reads") << QJsonValue(valid) << true;
    QJsonObject extra = valid;
    extra.insert(QStringLiteral("a key of tomorrow"), QJsonArray{1});
    QTest::newRow("an extra key is ignored") << QJsonValue(extra) << true;
    QTest::newRow("an empty object is refused") << QJsonValue(QJsonObject()) << false;
    QTest::newRow("an array is refused") << QJsonValue(QJsonArray{valid}) << false;
    QTest::newRow("null is refused") << QJsonValue(QJsonValue::Null) << false;
    for (auto member = valid.begin(); member != valid.end(); ++member) {
        const QByteArray key = member.key().toUtf8();
        const bool isOptional = optional.contains(member.key());
        const char* verdict = isOptional ? "reads" : "is refused";
        QJsonObject changed = valid;
        changed.remove(member.key());
        QTest::addRow("without \"%s\" it %s", key.constData(), verdict) << QJsonValue(changed) << isOptional;
        changed.insert(member.key(), QJsonValue::Null);
        QTest::addRow("with null for \"%s\" it %s", key.constData(), verdict) << QJsonValue(changed) << isOptional;
        for (const auto& [name, wrong] : wrongValues(member.value())) {
            changed.insert(member.key(), wrong);
            QTest::addRow("with %s for \"%s\" it is refused", name, key.constData()) << QJsonValue(changed) << false;
        }
    }
}

} // namespace Strictness
