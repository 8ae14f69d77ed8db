#include "DockCore/SpotlightUsage.h"

#include "Support/FakeServices.h"
#include "Support/TimeZone.h"
#include "Support/ValueTraits.h"

#include <QTest>

using namespace DockCore;
using namespace Qt::StringLiterals;

static_assert(isValue<SpotlightUsage::Result>);
static_assert(isValue<Metadata::Item>);

namespace {
const QString path = u"/Applications/Mail.app"_s;

QDateTime utc(const QString& text) {
    return QDateTime::fromString(text, Qt::ISODate);
}

/// Moments in UTC, separated by spaces.
QList<QDateTime> moments(const QString& text) {
    QList<QDateTime> moments;
    for (const QString& word : text.split(u' ', Qt::SkipEmptyParts))
        moments.append(utc(word));
    return moments;
}
} // namespace

class SpotlightUsageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_world = std::make_unique<Fakes::World>(); }
    void cleanup() { m_world.reset(); }

    void countsDays_data() {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<QString>("now");
        QTest::addColumn<QString>("used");
        QTest::addColumn<qint64>("inWeek");
        QTest::addColumn<qint64>("inMonth");
        const auto row = [](const char* name, const char* zone, const char16_t* now, const char16_t* used,
                            qint64 inWeek, qint64 inMonth) {
            QTest::newRow(name) << QByteArray(zone) << QString::fromUtf16(now) << QString::fromUtf16(used) << inWeek
                                << inMonth;
        };
        row("no dates", "UTC", u"2025-03-15T12:00:00Z", u"", 0, 0);
        row("three uses on one day and one on the day before", "UTC", u"2025-03-15T12:00:00Z",
            u"2025-03-15T08:00:00Z 2025-03-15T09:00:00Z 2025-03-14T23:59:59Z 2025-03-15T10:00:00Z", 2, 2);
        row("the future counts", "UTC", u"2025-03-15T12:00:00Z", u"2025-03-16T12:00:00Z 2026-03-16T12:00:00Z", 2, 2);
        row("exactly the cutoff counts", "UTC", u"2025-03-15T12:00:00Z", u"2025-03-08T12:00:00Z", 1, 1);
        row("a second before the cutoff does not", "UTC", u"2025-03-15T12:00:00Z", u"2025-03-08T11:59:59Z", 0, 1);
        row("exactly the month's cutoff counts", "UTC", u"2025-03-15T12:00:00Z", u"2025-02-13T12:00:00Z", 0, 1);
        row("a second before the month's cutoff does not", "UTC", u"2025-03-15T12:00:00Z", u"2025-02-13T11:59:59Z", 0,
            0);
        row("eight days fit into a week", "UTC", u"2025-03-15T12:00:00Z",
            u"2025-03-08T18:00:00Z 2025-03-09T18:00:00Z 2025-03-10T18:00:00Z 2025-03-11T18:00:00Z "
            u"2025-03-12T18:00:00Z 2025-03-13T18:00:00Z 2025-03-14T18:00:00Z 2025-03-15T08:00:00Z",
            8, 8);
        row("days are local ones", "Asia/Kolkata", u"2025-03-15T12:00:00Z",
            u"2025-03-14T18:29:59Z 2025-03-14T18:30:00Z", 2, 2);
        row("two days of UTC are one in Kolkata", "Asia/Kolkata", u"2025-03-15T12:00:00Z",
            u"2025-03-13T23:00:00Z 2025-03-14T01:00:00Z", 1, 1);
        // From 14:00 summer time back to 14:00 winter time: an hour more than seven times 24.
        row("over a clock change the time of day is kept", "Europe/Berlin", u"2025-04-02T12:00:00Z",
            u"2025-03-26T13:00:00Z", 1, 1);
        row("over a clock change a second before it is out", "Europe/Berlin", u"2025-04-02T12:00:00Z",
            u"2025-03-26T12:59:59Z", 0, 1);
        row("back from winter to summer time, too", "Europe/Berlin", u"2025-10-29T13:00:00Z", u"2025-10-22T12:00:00Z",
            1, 1);
        row("back from winter to summer time a second before is out", "Europe/Berlin", u"2025-10-29T13:00:00Z",
            u"2025-10-22T11:59:59Z", 0, 1);
        row("a change of half an hour", "Australia/Lord_Howe", u"2025-10-08T01:00:00Z", u"2025-10-01T01:30:00Z", 1, 1);
        row("a change of half an hour, a second before", "Australia/Lord_Howe", u"2025-10-08T01:00:00Z",
            u"2025-10-01T01:29:59Z", 0, 1);
        row("a day without a midnight is one day", "America/Sao_Paulo", u"2017-10-16T12:00:00Z",
            u"2017-10-15T02:59:59Z 2017-10-15T03:00:00Z 2017-10-16T01:59:59Z", 2, 2);
    }
    void countsDays() {
        QFETCH(const QByteArray, zone);
        QFETCH(const QString, now);
        QFETCH(const QString, used);
        QFETCH(const qint64, inWeek);
        QFETCH(const qint64, inMonth);
        const Fakes::TimeZone here(zone);
        m_world->metadata.items[path].usedDates = moments(used);
        QCOMPARE(SpotlightUsage::lookup(m_world->metadata, path, UsageWindow::week, utc(now)).daysUsed, inWeek);
        QCOMPARE(SpotlightUsage::lookup(m_world->metadata, path, UsageWindow::month, utc(now)).daysUsed, inMonth);
        QCOMPARE(SpotlightUsage::lookup(m_world->metadata, path, UsageWindow::week, utc(now).toLocalTime()).daysUsed,
                 inWeek);
    }

    void aCutoffAtATimeThatDayDidNotHaveLiesInTheSameDay() {
        const Fakes::TimeZone zone("Europe/Berlin");
        // 2:30 on 6 April; there is no 2:30 on 30 March.
        const QDateTime now = utc(u"2025-04-06T00:30:00Z"_s);
        m_world->metadata.items[path].usedDates = moments(u"2025-03-29T23:00:00Z 2025-03-30T21:00:00Z"_s);
        QCOMPARE(SpotlightUsage::lookup(m_world->metadata, path, UsageWindow::week, now).daysUsed, 1);
        m_world->metadata.items[path].usedDates = moments(u"2025-03-29T23:00:00Z"_s);
        QCOMPARE(SpotlightUsage::lookup(m_world->metadata, path, UsageWindow::week, now).daysUsed, 0);
    }

    void lastUsed_data() {
        QTest::addColumn<QString>("used");
        QTest::addColumn<QString>("last");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char* name, const char16_t* used, const char16_t* last, const char16_t* expected) {
            QTest::newRow(name) << QString::fromUtf16(used) << QString::fromUtf16(last) << QString::fromUtf16(expected);
        };
        row("nothing known", u"", u"", u"");
        row("the record's own date comes first", u"2026-03-10T12:00:00Z", u"2026-03-01T12:00:00Z",
            u"2026-03-01T12:00:00Z");
        row("else the latest of the used dates", u"2026-03-09T12:00:00Z 2026-03-10T12:00:00Z 2026-03-08T12:00:00Z", u"",
            u"2026-03-10T12:00:00Z");
        row("even before the cutoff", u"2020-01-01T12:00:00Z 2019-01-01T12:00:00Z", u"", u"2020-01-01T12:00:00Z");
        row("without used dates the record's own date counts", u"", u"2026-03-01T12:00:00Z", u"2026-03-01T12:00:00Z");
    }
    void lastUsed() {
        QFETCH(const QString, used);
        QFETCH(const QString, last);
        QFETCH(const QString, expected);
        Metadata::Item& item = m_world->metadata.items[path];
        if (!used.isEmpty())
            item.usedDates = moments(used);
        if (!last.isEmpty())
            item.lastUsedDate = utc(last);
        const auto result = SpotlightUsage::lookup(m_world->metadata, path, UsageWindow::week, m_world->clock.now());
        QCOMPARE(result.lastUsed, expected.isEmpty() ? std::nullopt : std::optional(utc(expected)));
        if (used.isEmpty())
            QCOMPARE(result.daysUsed, 0);
    }

    void anUnknownPathIsNothing() {
        const auto result =
            SpotlightUsage::lookup(m_world->metadata, u"/missing"_s, UsageWindow::month, m_world->clock.now());
        QCOMPARE(result, SpotlightUsage::Result());
        QCOMPARE(result.daysUsed, 0);
        QVERIFY(!result.lastUsed);
    }

private:
    std::unique_ptr<Fakes::World> m_world;
};

QTEST_GUILESS_MAIN(SpotlightUsageTest)
#include "SpotlightUsageTest.moc"
