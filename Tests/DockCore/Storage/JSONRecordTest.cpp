#include "DockCore/Storage/JSONRecord.h"

#include "Support/Strictness.h"

#include <QTest>

using namespace DockCore;
using namespace Qt::StringLiterals;

namespace {

/// A record as one version wrote it, and as a later version extends it.
struct Note {
    QString text;
    std::optional<qint64> lines;
    QHash<QString, double> weights;
    bool isPinned = true;
    QStringList tags;
    bool operator==(const Note&) const = default;
};

constexpr auto firstKeys = [](auto& keys, auto& note) {
    keys.required(u"text", note.text);
    keys.optional(u"lines", note.lines);
    keys.required(u"weights", note.weights);
};

constexpr auto laterKeys = [](auto& keys, auto& note) {
    firstKeys(keys, note);
    keys.added(u"isPinned", note.isPinned, true);
    keys.added(u"tags", note.tags, {});
};

std::optional<Note> read(const QJsonValue& json) {
    return JSONRecord::read<Note>(json, laterKeys);
}

const Note used = {u"a"_s, 2, {{u"x"_s, 0.5}}, false, {u"t"_s}};

} // namespace

class JSONRecordTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsStrictly_data() {
        Strictness::addRows(JSONRecord::write(used, laterKeys).toObject(), {u"lines"_s, u"isPinned"_s, u"tags"_s});
    }
    void readsStrictly() {
        QFETCH(const QJsonValue, json);
        QFETCH(const bool, reads);
        QCOMPARE(read(json).has_value(), reads);
    }

    void readsBackWhatItWrote() { QCOMPARE(read(JSONRecord::write(used, laterKeys)), used); }

    void fileOfTheVersionBeforeReadsWithDefaults() {
        const QJsonValue before = JSONRecord::write(used, firstKeys);
        QCOMPARE(read(before), (Note{used.text, used.lines, used.weights, true, {}}));
    }

    void nullForAnAddedKeyReadsAsItsDefault() {
        QJsonObject json = JSONRecord::write(used, laterKeys).toObject();
        json.insert(u"isPinned"_s, QJsonValue::Null);
        QCOMPARE(read(json)->isPinned, true);
    }

    void fileOfALaterVersionReadsWithoutItsKeys() {
        const auto note = JSONRecord::read<Note>(JSONRecord::write(used, laterKeys), firstKeys);
        QCOMPARE(note, (Note{used.text, used.lines, used.weights, true, {}}));
    }

    void addedKeysAtTheirDefaultsAreLeftOut() {
        const Note unused = {u"a"_s, std::nullopt, {}, true, {}};
        QCOMPARE(JSONRecord::write(unused, laterKeys), JSONRecord::write(unused, firstKeys));
        QCOMPARE(JSONRecord::write(unused, laterKeys),
                 QJsonValue(QJsonObject{{u"text"_s, u"a"_s}, {u"weights"_s, QJsonObject()}}));
        QCOMPARE(JSONRecord::write(used, laterKeys).toObject().keys(),
                 (QStringList{u"isPinned"_s, u"lines"_s, u"tags"_s, u"text"_s, u"weights"_s}));
    }

    void recordWithoutRequiredKeysIsStillAnObject() {
        const auto noKeys = [](auto&, auto&) {};
        QVERIFY(JSONRecord::read<Note>(QJsonObject(), noKeys));
        QVERIFY(!JSONRecord::read<Note>(QJsonArray(), noKeys));
    }

    void mapsReadTogetherShareTheirKeys() {
        QSet<QString> keys;
        const QJsonObject json = {{u"com.apple.mail"_s, 1}};
        const auto first = JSONForm<QHash<QString, double>>::read(json, &keys);
        const auto second = JSONForm<QHash<QString, qint64>>::read(json, &keys);
        QCOMPARE(first->cbegin().key().constData(), second->cbegin().key().constData());
    }
};

QTEST_GUILESS_MAIN(JSONRecordTest)
#include "JSONRecordTest.moc"
