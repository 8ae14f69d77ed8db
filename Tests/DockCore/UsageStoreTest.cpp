#include "DockCore/UsageStore.h"

#include "Support/ChildProcess.h"
#include "Support/FakeServices.h"
#include "Support/Files.h"
#include "Support/Strictness.h"
#include "Support/TimeZone.h"
#include "Support/ValueTraits.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <cmath>
#include <limits>

using namespace DockCore;
using namespace Qt::StringLiterals;

static_assert(isValue<DayUsage>);
static_assert(isValue<UsageTotals>);
static_assert(isValue<UsageStore::File>);
static_assert(isValue<UsageWindow>);
static_assert(!std::is_copy_constructible_v<UsageStore>);

namespace {
QDateTime utc(const QString& text) {
    return QDateTime::fromString(text, Qt::ISODate);
}

QDateTime local(int year, int month, int day, int hour = 12, int minute = 0, int second = 0) {
    return QDateTime(QDate(year, month, day), QTime(hour, minute, second));
}

const QString mail = u"com.apple.mail"_s;
const QString safari = u"com.apple.Safari"_s;

QJsonObject dayJson() {
    return {{u"seconds"_s, QJsonObject{{mail, 1.5}}}, {u"activations"_s, QJsonObject{{mail, 2}}}};
}

QJsonObject fileJson() {
    return {{u"version"_s, 1},
            {u"trackingSince"_s, u"2026-03-01T08:00:00Z"_s},
            {u"days"_s, QJsonObject{{u"2026-03-10"_s, dayJson()}}},
            {u"names"_s, QJsonObject{{mail, u"Mail"_s}}}};
}
} // namespace

class UsageStoreTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_world = std::make_unique<Fakes::World>(); }
    void cleanup() { m_world.reset(); }

    void windows() {
        QCOMPARE(allUsageWindows(), (QList<UsageWindow>{UsageWindow::week, UsageWindow::month}));
        QCOMPARE(days(UsageWindow::week), 7);
        QCOMPARE(days(UsageWindow::month), 30);
        QCOMPARE(title(UsageWindow::week), u"Last 7 days"_s);
        QCOMPARE(title(UsageWindow::month), u"Last 30 days"_s);
        QCOMPARE(shortTitle(UsageWindow::week), u"7 days"_s);
        QCOMPARE(shortTitle(UsageWindow::month), u"30 days"_s);
    }

    void aStoredWindowOtherThan7Or30IsNone() {
        QCOMPARE(usageWindow(7), UsageWindow::week);
        QCOMPARE(usageWindow(30), UsageWindow::month);
        for (const qint64 number : {qint64(0), qint64(1), qint64(-7), qint64(8), qint64(31), (qint64(1) << 32) + 7})
            QVERIFY(!usageWindow(number));
    }

    void aMomentsDayDependsOnTheTimeZone_data() {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<QString>("moment");
        QTest::addColumn<QString>("key");
        const auto row = [](const char* name, const char* zone, const char16_t* moment, const char16_t* key) {
            QTest::newRow(name) << QByteArray(zone) << QString::fromUtf16(moment) << QString::fromUtf16(key);
        };
        row("UTC", "UTC", u"2025-03-07T23:59:59Z", u"2025-03-07");
        row("the last second in Kolkata", "Asia/Kolkata", u"2025-03-07T18:29:59Z", u"2025-03-07");
        row("the first second in Kolkata", "Asia/Kolkata", u"2025-03-07T18:30:00Z", u"2025-03-08");
        row("the last second on Lord Howe in summer", "Australia/Lord_Howe", u"2025-01-07T12:59:59Z", u"2025-01-07");
        row("the first second on Lord Howe in summer", "Australia/Lord_Howe", u"2025-01-07T13:00:00Z", u"2025-01-08");
        row("the last second on Lord Howe in winter", "Australia/Lord_Howe", u"2025-07-07T13:29:59Z", u"2025-07-07");
        row("the first second on Lord Howe in winter", "Australia/Lord_Howe", u"2025-07-07T13:30:00Z", u"2025-07-08");
        row("the last second before a day without a midnight", "America/Sao_Paulo", u"2017-10-15T02:59:59Z",
            u"2017-10-14");
        row("the first second of a day without a midnight", "America/Sao_Paulo", u"2017-10-15T03:00:00Z",
            u"2017-10-15");
        row("the last second of a day without a midnight", "America/Sao_Paulo", u"2017-10-16T01:59:59Z", u"2017-10-15");
        row("the hour that comes twice, first time", "Europe/Berlin", u"2025-10-26T00:30:00Z", u"2025-10-26");
        row("the hour that comes twice, second time", "Europe/Berlin", u"2025-10-26T01:30:00Z", u"2025-10-26");
        row("the last second of a day of 25 hours", "Europe/Berlin", u"2025-10-26T22:59:59Z", u"2025-10-26");
        row("the last second of a day of 23 hours", "Europe/Berlin", u"2025-03-30T21:59:59Z", u"2025-03-30");
        row("the first second after a day of 23 hours", "Europe/Berlin", u"2025-03-30T22:00:00Z", u"2025-03-31");
        row("the far east", "Pacific/Kiritimati", u"2025-12-31T10:00:00Z", u"2026-01-01");
        row("the far west", "Etc/GMT+12", u"2026-01-01T11:59:59Z", u"2025-12-31");
        row("a year of two digits keeps four", "UTC", u"0033-04-03T12:00:00Z", u"0033-04-03");
        row("a leap day", "UTC", u"2024-02-29T12:00:00Z", u"2024-02-29");
    }
    void aMomentsDayDependsOnTheTimeZone() {
        QFETCH(const QByteArray, zone);
        QFETCH(const QString, moment);
        QFETCH(const QString, key);
        const Fakes::TimeZone here(zone);
        QCOMPARE(UsageStore::dayKey(utc(moment)), key);
        QCOMPARE(UsageStore::keys(1, utc(moment)), QStringList{key});
        UsageStore store(path());
        store.addSeconds(1, mail, {}, utc(moment));
        QVERIFY(store.day(key));
    }

    void theTimeZoneMayChangeWhileRunning() {
        const QDateTime moment = utc(u"2025-03-07T20:00:00Z"_s);
        const Fakes::TimeZone berlin("Europe/Berlin");
        QCOMPARE(UsageStore::dayKey(moment), u"2025-03-07"_s);
        {
            const Fakes::TimeZone kolkata("Asia/Kolkata");
            QCOMPARE(UsageStore::dayKey(moment), u"2025-03-08"_s);
        }
        QCOMPARE(UsageStore::dayKey(moment), u"2025-03-07"_s);
    }

    void ticksBeforeAndAfterMidnightGoToTwoDays() {
        const Fakes::TimeZone zone("Europe/Berlin");
        UsageStore store(path());
        store.addSeconds(10, mail, {}, local(2025, 3, 7, 23, 59, 50));
        store.addSeconds(10, mail, {}, local(2025, 3, 8, 0, 0, 10));
        QCOMPARE(store.day(u"2025-03-07"_s)->seconds.value(mail), 10.0);
        QCOMPARE(store.day(u"2025-03-08"_s)->seconds.value(mail), 10.0);
    }

    void keysGoBackFromToday_data() {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<QString>("now");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char* name, const char* zone, const char16_t* now, const char16_t* expected) {
            QTest::newRow(name) << QByteArray(zone) << QString::fromUtf16(now) << QString::fromUtf16(expected);
        };
        row("none", "UTC", u"2025-03-07T12:00:00Z", u"");
        row("one", "UTC", u"2025-03-07T12:00:00Z", u"2025-03-07");
        row("over the end of a month", "UTC", u"2025-03-01T12:00:00Z", u"2025-03-01 2025-02-28");
        row("over a leap day", "UTC", u"2024-03-01T12:00:00Z", u"2024-03-01 2024-02-29 2024-02-28");
        row("over the end of a year", "UTC", u"2026-01-01T12:00:00Z", u"2026-01-01 2025-12-31");
        row("over a short day, just after midnight", "Europe/Berlin", u"2025-03-30T22:10:00Z",
            u"2025-03-31 2025-03-30 2025-03-29");
        row("over a long day, just before midnight", "Europe/Berlin", u"2025-10-27T22:50:00Z",
            u"2025-10-27 2025-10-26 2025-10-25");
        row("at a time of day that a day before did not have", "Europe/Berlin", u"2025-03-31T00:30:00Z",
            u"2025-03-31 2025-03-30 2025-03-29");
        row("over a day without a midnight", "America/Sao_Paulo", u"2017-10-16T02:30:00Z",
            u"2017-10-16 2017-10-15 2017-10-14");
        row("over a change of half an hour", "Australia/Lord_Howe", u"2025-10-05T13:10:00Z",
            u"2025-10-06 2025-10-05 2025-10-04");
    }
    void keysGoBackFromToday() {
        QFETCH(const QByteArray, zone);
        QFETCH(const QString, now);
        QFETCH(const QString, expected);
        const Fakes::TimeZone here(zone);
        const QStringList keys = expected.split(u' ', Qt::SkipEmptyParts);
        QCOMPARE(UsageStore::keys(static_cast<int>(keys.size()), utc(now)), keys);
    }

    void keysOfAMonthAreThirtyDifferentDays() {
        for (const char* name : {"Europe/Berlin", "America/Sao_Paulo", "Australia/Lord_Howe", "Asia/Kolkata"}) {
            const Fakes::TimeZone zone(name);
            for (QDateTime now = utc(u"2017-01-01T00:15:00Z"_s); now.date().year() == 2017; now = now.addSecs(86000)) {
                const QStringList keys = UsageStore::keys(30, now);
                QCOMPARE(keys.size(), 30);
                QCOMPARE(QSet<QString>(keys.begin(), keys.end()).size(), 30);
                QVERIFY(std::is_sorted(keys.crbegin(), keys.crend()));
            }
        }
    }

    void aNegativeNumberOfDaysStopsTheProcess() {
        if (ChildProcess::isChild()) {
            UsageStore::keys(-1, utc(u"2025-03-07T12:00:00Z"_s));
            return;
        }
        const auto outcome = ChildProcess::run();
        QVERIFY2(outcome.crashed, qPrintable(outcome.output));
        QVERIFY(outcome.output.contains(u"negative number of days"));
    }

    void anOverflowOfActivationsStopsTheProcess() {
        if (ChildProcess::isChild()) {
            write(R"({"version":1,"names":{},"days":{"2026-03-11":{"seconds":{},)"
                  R"("activations":{"com.apple.mail":9223372036854775807}}}})");
            const Fakes::TimeZone zone("UTC");
            UsageStore store(path());
            store.addActivation(mail, {}, utc(u"2026-03-11T10:00:00Z"_s));
            return;
        }
        const auto outcome = ChildProcess::run();
        QVERIFY2(outcome.crashed, qPrintable(outcome.output));
        QVERIFY(outcome.output.contains(u"exceed 64 bits"));
    }

    void addsUpWhatItIsGiven() {
        const Fakes::TimeZone zone("UTC");
        UsageStore store(path());
        QVERIFY(!store.isDirty());
        QVERIFY(!store.trackingSince());
        store.addSeconds(10, mail, u"Mail"_s, now());
        QVERIFY(store.isDirty());
        store.addSeconds(0.25, mail, {}, now());
        store.addSeconds(-3, safari, {}, now());
        store.addActivation(mail, {}, now());
        store.addActivation(mail, {}, now());
        const auto day = store.day(u"2026-03-11"_s);
        QVERIFY(day);
        QCOMPARE(day->seconds, (QHash<QString, double>{{mail, 10.25}, {safari, -3}}));
        QCOMPARE(day->activations, (QHash<QString, qint64>{{mail, 2}}));
    }

    void theLatestNameWins() {
        UsageStore store(path());
        QVERIFY(!store.name(mail));
        store.addActivation(mail, u"Mail"_s, now());
        store.addSeconds(1, mail, std::nullopt, now());
        QCOMPARE(store.name(mail), u"Mail"_s);
        store.addSeconds(1, mail, u"Post"_s, now().addDays(-5));
        QCOMPARE(store.name(mail), u"Post"_s);
        QVERIFY(!store.name(safari));
    }

    void trackingSinceIsTheFirstAdditionForGood() {
        UsageStore store(path());
        store.addActivation(mail, {}, now());
        QCOMPARE(store.trackingSince(), now());
        store.addActivation(mail, {}, now().addDays(-5));
        store.addSeconds(1, mail, {}, now().addDays(5));
        QCOMPARE(store.trackingSince(), now());
    }

    void totalsOverAWindow_data() {
        QTest::addColumn<int>("age");
        QTest::addColumn<bool>("inWeek");
        QTest::addColumn<bool>("inMonth");
        QTest::newRow("today counts") << 0 << true << true;
        QTest::newRow("6 days ago counts in the week") << 6 << true << true;
        QTest::newRow("7 days ago does not") << 7 << false << true;
        QTest::newRow("29 days ago counts in the month") << 29 << false << true;
        QTest::newRow("30 days ago does not") << 30 << false << false;
        QTest::newRow("tomorrow does not") << -1 << false << false;
    }
    void totalsOverAWindow() {
        QFETCH(const int, age);
        QFETCH(const bool, inWeek);
        QFETCH(const bool, inMonth);
        UsageStore store(path());
        store.addSeconds(1, mail, {}, now().addDays(-age));
        QCOMPARE(store.totals(UsageWindow::week, now()).contains(mail), inWeek);
        QCOMPARE(store.totals(UsageWindow::month, now()).contains(mail), inMonth);
        QCOMPARE(store.trackedDays(UsageWindow::week, now()), inWeek ? 1 : 0);
        QCOMPARE(store.trackedDays(UsageWindow::month, now()), inMonth ? 1 : 0);
    }

    void totalsTakeTheUnionOfBothMaps() {
        UsageStore store(path());
        store.addSeconds(60, u"b"_s, {}, now());
        store.addSeconds(5, u"d"_s, {}, now());
        store.addActivation(u"a"_s, {}, now());
        store.addActivation(u"b"_s, {}, now());
        store.addActivation(u"c"_s, {}, now());
        store.addActivation(u"e"_s, {}, now());
        store.addSeconds(30, u"b"_s, {}, now().addDays(-1));
        store.addSeconds(0, u"f"_s, {}, now().addDays(-1));
        QCOMPARE(store.totals(UsageWindow::week, now()), (QHash<QString, UsageTotals>{{u"a"_s, {0, 1, 1}},
                                                                                      {u"b"_s, {90, 1, 2}},
                                                                                      {u"c"_s, {0, 1, 1}},
                                                                                      {u"d"_s, {5, 0, 1}},
                                                                                      {u"e"_s, {0, 1, 1}},
                                                                                      {u"f"_s, {0, 0, 1}}}));
    }

    void aDayOfOnlyActivationsHasNoSecondsAndIsActive() {
        UsageStore store(path());
        store.addActivation(mail, {}, now());
        QCOMPARE(store.totals(UsageWindow::week, now()), (QHash<QString, UsageTotals>{{mail, {0, 1, 1}}}));
    }

    void aDayOfEmptyMapsIsTracked() {
        const Fakes::TimeZone zone("UTC");
        write(R"({"version":1,"names":{},"days":{"2026-03-11":{"seconds":{},"activations":{}}}})");
        const UsageStore store(path());
        QCOMPARE(store.trackedDays(UsageWindow::week, now()), 1);
        QVERIFY(store.totals(UsageWindow::week, now()).isEmpty());
    }

    void hugeNumbersOfAFileStayInRange() {
        const Fakes::TimeZone zone("UTC");
        write(
            R"({"version":-9223372036854775808,"names":{},"days":{)"
            R"("2026-03-11":{"seconds":{"com.apple.mail":1e308},"activations":{"com.apple.mail":9223372036854775807}},)"
            R"("2026-03-10":{"seconds":{"com.apple.mail":1e308},"activations":{"com.apple.mail":9223372036854775807}}}})");
        const UsageTotals total = UsageStore(path()).totals(UsageWindow::week, now()).value(mail);
        QCOMPARE(total.activations, std::numeric_limits<qint64>::max());
        QVERIFY(std::isinf(total.seconds));
        QCOMPARE(total.activeDays, 2);
    }

    void saveKeepsNinetyDaysBack_data() {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<int>("age");
        QTest::addColumn<bool>("kept");
        QTest::newRow("today") << QByteArray("UTC") << 0 << true;
        QTest::newRow("90 days ago") << QByteArray("UTC") << 90 << true;
        QTest::newRow("91 days ago") << QByteArray("UTC") << 91 << false;
        QTest::newRow("a year ago") << QByteArray("UTC") << 365 << false;
        QTest::newRow("tomorrow") << QByteArray("UTC") << -1 << true;
        QTest::newRow("90 days ago over a clock change") << QByteArray("Europe/Berlin") << 90 << true;
        QTest::newRow("91 days ago over a clock change") << QByteArray("Europe/Berlin") << 91 << false;
    }
    void saveKeepsNinetyDaysBack() {
        QFETCH(const QByteArray, zone);
        QFETCH(const int, age);
        QFETCH(const bool, kept);
        const Fakes::TimeZone here(zone);
        // Ten past midnight in summer time, ninety days after winter time.
        m_world->clock.set(local(2025, 5, 1, 0, 10));
        const QDateTime today = m_world->clock.now();
        UsageStore store(path());
        store.addSeconds(1, mail, u"Mail"_s, today);
        store.addSeconds(1, safari, u"Safari"_s, local(2025, 5, 1).addDays(-age));
        store.save(m_world->clock.now());
        const QString key = UsageStore::dayKey(local(2025, 5, 1).addDays(-age));
        for (const UsageStore& other : {store.copy(), UsageStore(path())}) {
            QVERIFY(other.day(UsageStore::dayKey(today)));
            QCOMPARE(other.day(key).has_value(), kept);
            QCOMPARE(other.name(safari), u"Safari"_s);
        }
    }

    void saveWritesOnlyWhenSomethingChanged() {
        UsageStore store(path());
        store.save(m_world->clock.now());
        QVERIFY(!QFile::exists(path()));
        store.addActivation(mail, {}, now());
        store.save(m_world->clock.now());
        QVERIFY(!store.isDirty());
        QVERIFY(QFile::remove(path()));
        store.save(m_world->clock.now());
        QVERIFY(!QFile::exists(path()));
        store.addActivation(mail, {}, now());
        store.save(m_world->clock.now());
        QVERIFY(QFile::exists(path()));
    }

    void aFailedSaveIsNotTriedAgainUntilTheNextChange() {
        const QString missing = m_world->directory.filePath(u"missing"_s);
        UsageStore store(missing + u"/usage.json"_s);
        store.addActivation(mail, {}, now());
        store.save(m_world->clock.now());
        QVERIFY(!store.isDirty());
        QVERIFY(QDir().mkdir(missing));
        store.save(m_world->clock.now());
        QVERIFY(!QFile::exists(missing + u"/usage.json"_s));
        store.addActivation(mail, {}, now());
        store.save(m_world->clock.now());
        QCOMPARE(UsageStore(missing + u"/usage.json"_s).totals(UsageWindow::week, now()).value(mail).activations, 2);
    }

    void aNumberThatNoFileHoldsKeepsTheOldFile() {
        UsageStore store(path());
        store.addSeconds(1, mail, {}, now());
        store.save(m_world->clock.now());
        store.addSeconds(std::numeric_limits<double>::infinity(), mail, {}, now());
        store.save(m_world->clock.now());
        QVERIFY(!store.isDirty());
        QCOMPARE(UsageStore(path()).totals(UsageWindow::week, now()).value(mail).seconds, 1.0);
    }

    void writesTheDocumentedFile() {
        const Fakes::TimeZone zone("UTC");
        UsageStore store(path());
        store.addSeconds(90.5, safari, u"Safari"_s, now());
        store.addActivation(mail, u"Mail"_s, now());
        store.save(m_world->clock.now());
        QCOMPARE(read(), R"({
    "days": {
        "2026-03-11": {
            "activations": {
                "com.apple.mail": 1
            },
            "seconds": {
                "com.apple.Safari": 90.5
            }
        }
    },
    "names": {
        "com.apple.Safari": "Safari",
        "com.apple.mail": "Mail"
    },
    "trackingSince": "2026-03-11T10:00:00Z",
    "version": 1
}
)");
        QVERIFY(!(QFile::permissions(path()) & (QFileDevice::ReadGroup | QFileDevice::ReadOther)));
    }

    void readsBackWhatItWrote() {
        UsageStore store(path());
        double seconds = 0.1;
        for (int i = 0; i < 200; ++i) {
            const QString bundleID = u"com.%1.Ä\U0001F600\"\\"_s.arg(i % 17);
            store.addSeconds(seconds = std::fmod(seconds * 7.3 + 0.1, 1e6), bundleID, u"Name %1\n"_s.arg(i),
                             now().addDays(-i % 91));
            store.addActivation(bundleID, {}, now().addDays(-i % 30));
        }
        store.save(m_world->clock.now());
        const UsageStore other(path());
        QVERIFY(!other.isDirty());
        QCOMPARE(other.trackingSince(), store.trackingSince());
        for (const QString& key : UsageStore::keys(91, now()))
            QVERIFY(other.day(key) == store.day(key));
        QCOMPARE(other.totals(UsageWindow::month, now()), store.totals(UsageWindow::month, now()));
        for (int i = 0; i < 17; ++i)
            QCOMPARE(other.name(u"com.%1.Ä\U0001F600\"\\"_s.arg(i)), store.name(u"com.%1.Ä\U0001F600\"\\"_s.arg(i)));
    }

    void theVersionReadIsKept() {
        write(R"({"version":42,"names":{},"days":{}})");
        UsageStore store(path());
        store.addActivation(mail, {}, now());
        store.save(m_world->clock.now());
        QCOMPARE(QJsonDocument::fromJson(read())[u"version"].toInt(), 42);
    }

    void readsAFileStrictly_data() { Strictness::addRows(fileJson(), {u"trackingSince"_s}); }
    void readsAFileStrictly() {
        QFETCH(const QJsonValue, json);
        QFETCH(const bool, reads);
        write(json.isArray() ? QJsonDocument(json.toArray()).toJson() : QJsonDocument(json.toObject()).toJson());
        const UsageStore store(path());
        QCOMPARE(store.name(mail).has_value(), reads);
        QCOMPARE(store.day(u"2026-03-10"_s).has_value(), reads);
        if (!reads)
            QVERIFY(!store.trackingSince());
    }

    void readsADayStrictly_data() { Strictness::addRows(dayJson(), {}); }
    void readsADayStrictly() {
        QFETCH(const QJsonValue, json);
        QFETCH(const bool, reads);
        QJsonObject file = fileJson();
        file.insert(u"days"_s, QJsonObject{{u"2026-03-10"_s, json}});
        write(QJsonDocument(file).toJson());
        QCOMPARE(UsageStore(path()).name(mail).has_value(), reads);
    }

    void whatIsNoUsageFileReadsAsEmptyAndStays_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("an empty file") << QByteArray();
        QTest::newRow("an empty object") << QByteArray("{}");
        QTest::newRow("broken JSON") << QByteArray("{\"version\":1,");
        QTest::newRow("without names") << QByteArray(R"({"version":1,"days":{}})");
        QTest::newRow("null for one application's seconds")
            << QByteArray(R"({"version":1,"names":{},"days":{"2026-03-11":{"seconds":{"a":null},"activations":{}}}})");
        QTest::newRow("1.5 activations") << QByteArray(
            R"({"version":1,"names":{},"days":{"2026-03-11":{"seconds":{},"activations":{"a":1.5}}}})");
        QTest::newRow("true for an activation")
            << QByteArray(R"({"version":1,"names":{},"days":{"2026-03-11":{"seconds":{},"activations":{"a":true}}}})");
        QTest::newRow("a number for a name") << QByteArray(R"({"version":1,"names":{"a":7},"days":{}})");
        QTest::newRow("a day that is null") << QByteArray(R"({"version":1,"names":{},"days":{"2026-03-11":null}})");
        QTest::newRow("a date with a fraction")
            << QByteArray(R"({"version":1,"names":{},"days":{},"trackingSince":"2026-03-11T10:00:00.5Z"})");
        QTest::newRow("deep nesting") << QByteArray(R"({"version":1,"names":{},"days":)") +
                                             QByteArray("{\"a\":").repeated(10000) + QByteArray(10001, '}');
        QTest::newRow("invalid UTF-8") << QByteArray("{\"version\":1,\"names\":{\"\xff\":\"a\"},\"days\":{}}");
        QTest::newRow("a number beyond all doubles")
            << QByteArray(R"({"version":1,"names":{},"days":{"2026-03-11":{"seconds":{"a":1e999},"activations":{}}}})");
    }
    void whatIsNoUsageFileReadsAsEmptyAndStays() {
        QFETCH(const QByteArray, bytes);
        write(bytes);
        UsageStore store(path());
        QVERIFY(!store.isDirty());
        QVERIFY(!store.trackingSince());
        QCOMPARE(store.trackedDays(UsageWindow::month, now()), 0);
        store.save(m_world->clock.now());
        QCOMPARE(read(), bytes);
        store.addActivation(mail, {}, now());
        store.save(m_world->clock.now());
        QVERIFY(UsageStore(path()).trackingSince());
    }

    void anOffsetIsAccepted() {
        write(R"({"version":1,"names":{},"days":{},"trackingSince":"2026-03-11T11:30:00+01:30"})");
        QCOMPARE(UsageStore(path()).trackingSince(), now());
    }

    void clockPastTheYear9999KeepsTheFileReadable() {
        const Fakes::TimeZone zone("UTC");
        const QDateTime future(QDate(10000, 2, 1), QTime(12, 0), Qt::UTC);
        m_world->clock.set(future);
        UsageStore store(path());
        store.addSeconds(1, mail, u"Mail"_s, future);
        store.save(m_world->clock.now());
        const UsageStore other(path());
        QCOMPARE(other.trackingSince(), utc(u"9999-12-31T23:59:59Z"_s));
        QCOMPARE(other.name(mail), u"Mail"_s);
        QCOMPARE(other.day(u"9999-12-31"_s)->seconds.value(mail), 1.0);
        QCOMPARE(other.totals(UsageWindow::week, future), (QHash<QString, UsageTotals>{{mail, {1, 0, 1}}}));
        QCOMPARE(UsageStore::keys(2, future), (QStringList{u"9999-12-31"_s, u"9999-12-30"_s}));
    }

    void daysBeforeTheYear1HaveNoKey() {
        const Fakes::TimeZone zone("UTC");
        QCOMPARE(UsageStore::keys(4, utc(u"0001-01-02T12:00:00Z"_s)), (QStringList{u"0001-01-02"_s, u"0001-01-01"_s}));
    }

    void ofADuplicateDayTheLastCounts() {
        write(R"({"version":1,"names":{},"days":{"2026-03-11":{"seconds":{"a":1},"activations":{}},)"
              R"("2026-03-11":{"seconds":{"a":2},"activations":{}}}})");
        QCOMPARE(UsageStore(path()).day(u"2026-03-11"_s)->seconds.value(u"a"_s), 2.0);
    }

    void eraseForgetsEverything() {
        UsageStore store(path());
        store.addActivation(mail, u"Mail"_s, now());
        store.save(m_world->clock.now());
        store.addActivation(mail, u"Mail"_s, now());
        store.erase();
        QVERIFY(!QFile::exists(path()));
        QVERIFY(!store.isDirty());
        QVERIFY(!store.trackingSince());
        QVERIFY(!store.name(mail));
        QCOMPARE(store.trackedDays(UsageWindow::month, now()), 0);
        store.save(m_world->clock.now());
        QVERIFY(!QFile::exists(path()));
        store.erase();

        const QDateTime later = now().addSecs(60);
        store.addActivation(mail, {}, later);
        QCOMPARE(store.trackingSince(), later);
    }

    void aCopyIsIndependent() {
        const QString today = UsageStore::dayKey(now());
        UsageStore store(path());
        store.addSeconds(1, mail, u"Mail"_s, now());
        UsageStore copy = store.copy();
        QVERIFY(store.isDirty());
        QVERIFY(!copy.isDirty());
        copy.addSeconds(10, mail, u"Post"_s, now());
        QCOMPARE(store.day(today)->seconds.value(mail), 1.0);
        QCOMPARE(store.name(mail), u"Mail"_s);
        store.addSeconds(100, mail, {}, now());
        QCOMPARE(copy.day(today)->seconds.value(mail), 11.0);
        QCOMPARE(copy.name(mail), u"Post"_s);
        copy.save(m_world->clock.now());
        QCOMPARE(UsageStore(path()).day(today)->seconds.value(mail), 11.0);
    }

    void aCopySharesItsDataUntilOneOfTheTwoChanges() {
        const QString today = UsageStore::dayKey(now());
        const QString yesterday = UsageStore::dayKey(now().addDays(-1));
        UsageStore store(path());
        store.addSeconds(1, mail, {}, now());
        store.addSeconds(1, mail, {}, now().addDays(-1));
        const UsageStore copy = store.copy();
        const auto shared = [&](const QString& key) {
            return store.day(key)->seconds.isSharedWith(copy.day(key)->seconds);
        };
        QVERIFY(shared(today));
        QVERIFY(shared(yesterday));
        store.addSeconds(1, mail, {}, now());
        QVERIFY(!shared(today));
        QVERIFY(shared(yesterday));
    }

private:
    QDateTime now() const { return m_world->clock.now(); }
    QString path() const { return m_world->directory.filePath(u"usage.json"_s); }
    QByteArray read() const { return Files::contentOf(path()); }
    void write(const QByteArray& bytes) const {
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), bytes.size());
    }

    std::unique_ptr<Fakes::World> m_world;
};

QTEST_GUILESS_MAIN(UsageStoreTest)
#include "UsageStoreTest.moc"
