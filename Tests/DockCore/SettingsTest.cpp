#include "DockCore/Settings.h"

#include "DockCore/Profile.h"
#include "Support/Strictness.h"
#include "Support/ValueTraits.h"

#include <QJsonObject>
#include <QTest>

using namespace DockCore;
using namespace Qt::StringLiterals;

static_assert(isValue<AppSettings>);
static_assert(isValue<AutoUpdate>);

namespace {
const QString idText = u"0F8FAD5B-D9CB-469F-A165-70867728950E"_s;

AppSettings full() {
    return {true,
            QUuid(idText),
            AutoUpdate::every4Hours,
            false,
            true,
            QStringList{u"com.apple.mail"_s, u"small-spacer-tile"_s},
            QDateTime(QDate(2026, 3, 1), QTime(8, 0), Qt::UTC)};
}
} // namespace

class SettingsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void intervals_data() {
        QTest::addColumn<AutoUpdate>("interval");
        QTest::addColumn<qint64>("seconds");
        QTest::addColumn<QString>("text");
        QTest::newRow("off") << AutoUpdate::off << qint64(0) << u"Off \u2014 only when I ask"_s;
        QTest::newRow("hourly") << AutoUpdate::hourly << qint64(3600) << u"Every hour"_s;
        QTest::newRow("every 4 hours") << AutoUpdate::every4Hours << qint64(14400) << u"Every 4 hours"_s;
        QTest::newRow("daily") << AutoUpdate::daily << qint64(86400) << u"Once a day"_s;
    }
    void intervals() {
        QFETCH(const AutoUpdate, interval);
        QFETCH(const qint64, seconds);
        QFETCH(const QString, text);
        QCOMPARE(static_cast<qint64>(interval), seconds);
        QCOMPARE(autoUpdate(seconds), interval);
        QCOMPARE(title(interval), text);
    }

    void theIntervalsInOrder() {
        QCOMPARE(allAutoUpdates(),
                 (QList<AutoUpdate>{AutoUpdate::off, AutoUpdate::hourly, AutoUpdate::every4Hours, AutoUpdate::daily}));
    }

    void noOtherIntervalExists() {
        for (const qint64 seconds : {qint64(-1), qint64(1), qint64(600), qint64(3601), qint64(1) << 32})
            QVERIFY(!autoUpdate(seconds));
    }

    void theDefaultRecord() {
        const AppSettings settings;
        QVERIFY(!settings.onboarded);
        QVERIFY(!settings.activeProfileID);
        QCOMPARE(settings.autoUpdate, AutoUpdate::daily);
        QVERIFY(settings.trackingEnabled);
        QVERIFY(!settings.autoPaused);
        QVERIFY(!settings.lastAppliedSignature);
        QVERIFY(!settings.lastApplied);
        QCOMPARE(settings.toJson(), QJsonValue(QJsonObject{{u"onboarded"_s, false},
                                                           {u"autoUpdate"_s, 86400},
                                                           {u"trackingEnabled"_s, true},
                                                           {u"autoPaused"_s, false}}));
    }

    void theFullRecord() {
        QCOMPARE(full().toJson(), QJsonValue(QJsonObject{{u"onboarded"_s, true},
                                                         {u"activeProfileID"_s, idText},
                                                         {u"autoUpdate"_s, 14400},
                                                         {u"trackingEnabled"_s, false},
                                                         {u"autoPaused"_s, true},
                                                         {u"lastAppliedSignature"_s,
                                                          QJsonArray{u"com.apple.mail"_s, u"small-spacer-tile"_s}},
                                                         {u"lastApplied"_s, u"2026-03-01T08:00:00Z"_s}}));
    }

    void fromJson_data() {
        Strictness::addRows(full().toJson().toObject(),
                            {u"activeProfileID"_s, u"lastAppliedSignature"_s, u"lastApplied"_s});
        const auto row = [](const char* name, const QString& key, const QJsonValue& value, bool reads) {
            QJsonObject object = full().toJson().toObject();
            object.insert(key, value);
            QTest::newRow(name) << QJsonValue(object) << reads;
        };
        for (const AutoUpdate interval : allAutoUpdates())
            row(qPrintable(u"the interval %1 reads"_s.arg(static_cast<int>(interval))), u"autoUpdate"_s,
                static_cast<int>(interval), true);
        row("an interval of 600 is refused", u"autoUpdate"_s, 600, false);
        row("a negative interval is refused", u"autoUpdate"_s, -3600, false);
        row("the name of an interval is refused", u"autoUpdate"_s, u"daily"_s, false);
        row("an identifier that is none is refused", u"activeProfileID"_s, u"none"_s, false);
        row("an empty identifier is refused", u"activeProfileID"_s, u""_s, false);
        row("an empty signature reads", u"lastAppliedSignature"_s, QJsonArray(), true);
        row("a date with a fraction is refused", u"lastApplied"_s, u"2026-03-01T08:00:00.5Z"_s, false);
        row("a date with an offset reads", u"lastApplied"_s, u"2026-03-01T08:00:00-05:00"_s, true);
        row("an impossible date is refused", u"lastApplied"_s, u"2025-02-30T08:00:00Z"_s, false);
    }
    void fromJson() {
        QFETCH(const QJsonValue, json);
        QFETCH(const bool, reads);
        QCOMPARE(AppSettings::fromJson(json).has_value(), reads);
    }

    void readsBackWhatItWrote() {
        QCOMPARE(AppSettings::fromJson(full().toJson()), full());
        QCOMPARE(AppSettings::fromJson(AppSettings().toJson()), AppSettings());
        AppSettings settings;
        settings.lastAppliedSignature = QStringList();
        QCOMPARE(AppSettings::fromJson(settings.toJson()), settings);
    }

    void aDateIsKeptToTheSecond() {
        AppSettings settings;
        settings.lastApplied = QDateTime(QDate(2026, 3, 1), QTime(14, 5, 9, 750), Qt::UTC);
        QCOMPARE(AppSettings::fromJson(settings.toJson())->lastApplied,
                 QDateTime(QDate(2026, 3, 1), QTime(14, 5, 9), Qt::UTC));
    }

    void dateOfAClockGoneWrongKeepsTheRecordReadable() {
        AppSettings settings = full();
        settings.lastApplied = QDateTime(QDate(10000, 1, 1), QTime(0, 0), Qt::UTC);
        const auto read = AppSettings::fromJson(settings.toJson());
        QVERIFY(read);
        QCOMPARE(read->lastApplied, QDateTime(QDate(9999, 12, 31), QTime(23, 59, 59), Qt::UTC));
        QCOMPARE(read->activeProfileID, settings.activeProfileID);
    }
};

QTEST_GUILESS_MAIN(SettingsTest)
#include "SettingsTest.moc"
