#include "DockCore/Profile.h"

#include "Support/Strictness.h"
#include "Support/ValueTraits.h"

#include <QJsonObject>
#include <QTest>

#include <functional>
#include <limits>

using namespace DockCore;
using namespace Qt::StringLiterals;

static_assert(isValue<Profile>);

namespace {
const QString idText = u"0F8FAD5B-D9CB-469F-A165-70867728950E"_s;

Profile sample() {
    return {QUuid(idText), u"Work"_s, u"briefcase"_s,    {u"com.b"_s, u"com.a"_s, u"com.b"_s},
            {u"com.c"_s},  8,         UsageWindow::week, true};
}
} // namespace

class ProfileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void offersTwelveSymbols() {
        QCOMPARE(Profile::symbols(),
                 (QStringList{u"sparkles"_s, u"briefcase"_s, u"chevron.left.forwardslash.chevron.right"_s, u"video"_s,
                              u"house"_s, u"paintbrush"_s, u"music.note"_s, u"gamecontroller"_s, u"book"_s,
                              u"chart.bar"_s, u"airplane"_s, u"heart"_s}));
    }

    void makeGivesAFreshIdentifier() {
        const Profile first = Profile::make(u"N"_s, u"video"_s, {u"a"_s}, {u"b"_s}, -3, UsageWindow::month, true);
        const Profile second = Profile::make(u"N"_s, u"video"_s, {u"a"_s}, {u"b"_s}, -3, UsageWindow::month, true);
        QVERIFY(!first.id.isNull());
        QVERIFY(first.id != second.id);
        QVERIFY(first != second);
        Profile same = second;
        same.id = first.id;
        QCOMPARE(same, first);
        QCOMPARE(first, (Profile{first.id, u"N"_s, u"video"_s, {u"a"_s}, {u"b"_s}, -3, UsageWindow::month, true}));
    }

    void everyFieldCountsForEquality_data() {
        QTest::addColumn<std::function<void(Profile&)>>("change");
        const auto row = [](const char* name, const std::function<void(Profile&)>& change) {
            QTest::newRow(name) << change;
        };
        row("id", [](Profile& profile) { profile.id = QUuid::createUuid(); });
        row("name", [](Profile& profile) { profile.name = u"work"_s; });
        row("symbol", [](Profile& profile) { profile.symbol = u"house"_s; });
        row("order of the pinned", [](Profile& profile) { std::swap(profile.pinned[0], profile.pinned[1]); });
        row("number of the pinned", [](Profile& profile) { profile.pinned.removeLast(); });
        row("excluded", [](Profile& profile) { profile.excluded.clear(); });
        row("where pinned end and excluded begin",
            [](Profile& profile) { profile.excluded.prepend(profile.pinned.takeLast()); });
        row("adaptive slots", [](Profile& profile) { ++profile.adaptiveSlots; });
        row("window", [](Profile& profile) { profile.window = UsageWindow::month; });
        row("separation", [](Profile& profile) { profile.separatePinned = false; });
    }
    void everyFieldCountsForEquality() {
        QFETCH(const std::function<void(Profile&)>, change);
        Profile changed = sample();
        QCOMPARE(changed, sample());
        QCOMPARE(qHash(changed), qHash(sample()));
        change(changed);
        QVERIFY(changed != sample());
        QVERIFY(qHash(changed) != qHash(sample()));
    }

    void fromJson_data() {
        Strictness::addRows(sample().toJson().toObject(), {});
        const auto row = [](const char* name, const QString& key, const QJsonValue& value, bool reads) {
            QJsonObject object = sample().toJson().toObject();
            object.insert(key, value);
            QTest::newRow(name) << QJsonValue(object) << reads;
        };
        row("a window of 30 reads", u"window"_s, 30, true);
        row("a window of 7.0 reads", u"window"_s, 7.0, true);
        row("a window of 14 is refused", u"window"_s, 14, false);
        row("a window of 0 is refused", u"window"_s, 0, false);
        row("a window over 32 bits is refused", u"window"_s, (qint64(1) << 32) + 7, false);
        row("the title of a window is refused", u"window"_s, u"Last 7 days"_s, false);
        row("negative slots read", u"adaptiveSlots"_s, -5, true);
        row("the most slots read", u"adaptiveSlots"_s, std::numeric_limits<qint64>::max(), true);
        row("empty lists read", u"pinned"_s, QJsonArray(), true);
        row("an unknown symbol reads", u"symbol"_s, u"nothing.known"_s, true);
        row("an empty name reads", u"name"_s, u""_s, true);
        row("an identifier that is none is refused", u"id"_s, u"not an identifier"_s, false);
        row("an empty identifier is refused", u"id"_s, u""_s, false);
        row("an identifier in braces is refused", u"id"_s, u"{%1}"_s.arg(idText), false);
        row("a lower-case identifier reads", u"id"_s, idText.toLower(), true);
    }
    void fromJson() {
        QFETCH(const QJsonValue, json);
        QFETCH(const bool, reads);
        QCOMPARE(Profile::fromJson(json).has_value(), reads);
    }

    void reencodesToTheSameEightKeys() {
        const QJsonObject json = sample().toJson().toObject();
        QCOMPARE(json, (QJsonObject{{u"id"_s, idText},
                                    {u"name"_s, u"Work"_s},
                                    {u"symbol"_s, u"briefcase"_s},
                                    {u"pinned"_s, QJsonArray{u"com.b"_s, u"com.a"_s, u"com.b"_s}},
                                    {u"excluded"_s, QJsonArray{u"com.c"_s}},
                                    {u"adaptiveSlots"_s, 8},
                                    {u"window"_s, 7},
                                    {u"separatePinned"_s, true}}));
        QJsonObject extra = json;
        extra.insert(u"color"_s, u"blue"_s);
        const auto profile = Profile::fromJson(extra);
        QCOMPARE(profile, sample());
        QCOMPARE(profile->toJson(), QJsonValue(json));
    }

    void readsBackWhatItWrote() {
        Profile profile = sample();
        profile.name = u"Büro 日本 \U0001F4BC"_s;
        profile.adaptiveSlots = std::numeric_limits<qint64>::min();
        profile.window = UsageWindow::month;
        QCOMPARE(Profile::fromJson(profile.toJson()), profile);
    }

    void identifiersAsText_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("reads");
        QTest::newRow("upper case") << idText << true;
        QTest::newRow("lower case") << idText.toLower() << true;
        QTest::newRow("zeroes") << u"00000000-0000-0000-0000-000000000000"_s << true;
        QTest::newRow("braces are refused") << u"{%1}"_s.arg(idText) << false;
        QTest::newRow("a missing dash is refused") << QString(idText).remove(8, 1) << false;
        QTest::newRow("a moved dash is refused") << u"0F8FAD5-BD9CB-469F-A165-70867728950E"_s << false;
        QTest::newRow("a letter beyond F is refused") << u"0F8FAD5B-D9CB-469F-A165-70867728950G"_s << false;
        QTest::newRow("a space at the end is refused") << idText + u' ' << false;
        QTest::newRow("a digit of another script is refused") << u"٠F8FAD5B-D9CB-469F-A165-70867728950E"_s << false;
        QTest::newRow("empty text is refused") << QString() << false;
    }
    void identifiersAsText() {
        QFETCH(const QString, text);
        QFETCH(const bool, reads);
        const auto id = uuidFromString(text);
        QCOMPARE(id.has_value(), reads);
        if (reads)
            QCOMPARE(uuidString(*id), text.toUpper());
    }
};

QTEST_GUILESS_MAIN(ProfileTest)
#include "ProfileTest.moc"
