#include "Kelvane/ViewModels/UsageText.h"

#include <QTest>

using namespace DockCore;
using namespace Kelvane;
using namespace Qt::StringLiterals;

class UsageTextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        qputenv("TZ", "Europe/Berlin");
        tzset();
    }

    void duration_data() {
        QTest::addColumn<double>("seconds");
        QTest::addColumn<QString>("text");
        QTest::newRow("nothing is under a minute") << 0.0 << u"under a minute"_s;
        QTest::newRow("a second short of a minute is under a minute") << 59.999 << u"under a minute"_s;
        QTest::newRow("a whole minute is 1m") << 60.0 << u"1m"_s;
        QTest::newRow("seconds beyond the minute are dropped") << 359.9 << u"5m"_s;
        QTest::newRow("a second short of an hour is 59m") << 3599.0 << u"59m"_s;
        QTest::newRow("exactly an hour is 1h 0m") << 3600.0 << u"1h 0m"_s;
        QTest::newRow("two hours and five minutes") << 7500.0 << u"2h 5m"_s;
        QTest::newRow("hours do not become days") << 100.0 * 3600 << u"100h 0m"_s;
    }
    void duration() {
        QFETCH(double, seconds);
        QTEST(UsageText::duration(seconds), "text");
    }

    void detail_data() {
        QTest::addColumn<double>("seconds");
        QTest::addColumn<int>("switches");
        QTest::addColumn<int>("trackedDays");
        QTest::addColumn<int>("openedDays");
        QTest::addColumn<int>("window");
        QTest::addColumn<QString>("text");
        QTest::newRow("all parts in their order")
            << 7500.0 << 3 << 4 << 0 << 7 << u"2h 5m active · 3 switches · 4 of 7 days"_s;
        QTest::newRow("one switch has no plural")
            << 300.0 << 1 << 2 << 0 << 7 << u"5m active · 1 switch · 2 of 7 days"_s;
        QTest::newRow("two switches have one")
            << 300.0 << 2 << 2 << 0 << 7 << u"5m active · 2 switches · 2 of 7 days"_s;
        QTest::newRow("used once for a few seconds on one day reads 1 of 7 days")
            << 4.0 << 1 << 1 << 0 << 7 << u"under a minute active · 1 switch · 1 of 7 days"_s;
        QTest::newRow("the month counts 30 days") << 300.0 << 0 << 1 << 0 << 30 << u"5m active · 1 of 30 days"_s;
        QTest::newRow("no seconds say nothing of time") << 0.0 << 2 << 1 << 0 << 7 << u"2 switches · 1 of 7 days"_s;
        QTest::newRow("opened on one day") << 0.0 << 0 << 0 << 1 << 7 << u"opened on 1 day (macOS history)"_s;
        QTest::newRow("opened on several days") << 0.0 << 0 << 0 << 12 << 30 << u"opened on 12 days (macOS history)"_s;
        QTest::newRow("tracked days hide the opened ones") << 60.0 << 0 << 1 << 5 << 7 << u"1m active · 1 of 7 days"_s;
        QTest::newRow("nothing known says nothing") << 0.0 << 0 << 0 << 0 << 7 << QString();
    }
    void detail() {
        QFETCH(double, seconds);
        QFETCH(int, switches);
        QFETCH(int, trackedDays);
        QFETCH(int, openedDays);
        QFETCH(int, window);
        const AppScore score{{}, seconds, switches, trackedDays, openedDays, {}, 1};
        QTEST(UsageText::detail(score, *usageWindow(window)), "text");
    }

    void subtitle_data() {
        QTest::addColumn<QDateTime>("since");
        QTest::addColumn<QString>("text");
        QTest::newRow("before the first tick")
            << QDateTime()
            << u"Tracking starts now. Until then, ranks use macOS's record of which days each app was opened."_s;
        QTest::newRow("with a start date") << QDateTime::fromString(u"2025-11-01T12:00:00Z"_s, Qt::ISODate)
                                           << u"Tracking since Nov 1, 2025. Time counts only while you're active."_s;
        QTest::newRow("the date is the local one")
            << QDateTime::fromString(u"2025-10-31T23:30:00Z"_s, Qt::ISODate)
            << u"Tracking since Nov 1, 2025. Time counts only while you're active."_s;
    }
    void subtitle() {
        QFETCH(QDateTime, since);
        QTEST(UsageText::subtitle(since.isValid() ? std::optional(since) : std::nullopt), "text");
    }

    void reason_data() {
        QTest::addColumn<double>("seconds");
        QTest::addColumn<int>("switches");
        QTest::addColumn<int>("openedDays");
        QTest::addColumn<double>("opened");
        QTest::addColumn<QString>("text");
        QTest::newRow("time and switches")
            << 33840.0 << 212 << 0 << 0.0
            << u"988 points: 564 for time active (1 a minute), 424 for 212 switches (2 each)"_s;
        QTest::newRow("ninety seconds and one switch make 3.5")
            << 90.0 << 1 << 0 << 0.0 << u"3.5 points: 1.5 for time active (1 a minute), 2 for 1 switch (2 each)"_s;
        QTest::newRow("days opened without tracked history count ten each")
            << 0.0 << 0 << 3 << 30.0 << u"30 points: 30 for 3 days opened (10 each)"_s;
        QTest::newRow("days opened count less with tracked history")
            << 60.0 << 0 << 3 << 3 * (1 - 2.0 / 7) * 10
            << u"22.4 points: 1 for time active (1 a minute), 21.4 for 3 days opened (7.1 each)"_s;
        QTest::newRow("one point has no plural")
            << 60.0 << 0 << 0 << 0.0 << u"1 point: 1 for time active (1 a minute)"_s;
    }
    void reason() {
        QFETCH(double, seconds);
        QFETCH(int, switches);
        QFETCH(int, openedDays);
        QFETCH(double, opened);
        const double minutes = seconds / 60;
        const double switched = 2.0 * switches;
        QTEST(UsageText::reason(
                  {{}, seconds, switches, 0, openedDays, {}, minutes + switched + opened, minutes, switched, opened}),
              "text");
    }
};

QTEST_GUILESS_MAIN(UsageTextTest)
#include "UsageTextTest.moc"
