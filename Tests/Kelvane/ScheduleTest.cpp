#include "Kelvane/Schedule.h"

#include <QTest>

using namespace DockCore;
using namespace Kelvane;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QStringList applied = {u"org.example.a"_s, u"org.example.b"_s};

/// Settings in which an update is due as soon as its interval has passed.
AppSettings active(AutoUpdate interval) {
    AppSettings settings;
    settings.onboarded = true;
    settings.autoUpdate = interval;
    settings.lastAppliedSignature = applied;
    return settings;
}

} // namespace

class ScheduleTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anUpdateIsDueWhenItsIntervalHasPassed_data() {
        QTest::addColumn<AutoUpdate>("interval");
        QTest::addColumn<double>("passed");
        QTest::addColumn<bool>("isDue");
        QTest::newRow("daily, after 23 hours") << AutoUpdate::daily << 23 * 3600.0 << false;
        QTest::newRow("daily, just before 24 hours") << AutoUpdate::daily << 86'399.999 << false;
        QTest::newRow("daily, after exactly 24 hours") << AutoUpdate::daily << 86'400.0 << true;
        QTest::newRow("every 4 hours, just before") << AutoUpdate::every4Hours << 14'399.0 << false;
        QTest::newRow("every 4 hours, after exactly 4") << AutoUpdate::every4Hours << 14'400.0 << true;
        QTest::newRow("hourly, just before") << AutoUpdate::hourly << 3'599.0 << false;
        QTest::newRow("hourly, after exactly one") << AutoUpdate::hourly << 3'600.0 << true;
        QTest::newRow("the wall clock was set back") << AutoUpdate::hourly << -10.0 << false;
    }
    void anUpdateIsDueWhenItsIntervalHasPassed() {
        QFETCH(const AutoUpdate, interval);
        QFETCH(const double, passed);
        QTEST(Schedule::isDue(active(interval), Schedule::Seconds(passed)), "isDue");
    }

    void withoutATimeOfTheLastApplyTheIntervalDoesNotCount() {
        QVERIFY(Schedule::isDue(active(AutoUpdate::daily), std::nullopt));
    }

    void nothingIsDueUnlessUpdatesAreActive() {
        AppSettings settings = active(AutoUpdate::daily);
        settings.onboarded = false;
        QVERIFY2(!Schedule::isDue(settings, 48h), "before the first run has ended");
        settings = active(AutoUpdate::off);
        QVERIFY2(!Schedule::isDue(settings, 48h), "updates are off");
        settings = active(AutoUpdate::daily);
        settings.autoPaused = true;
        QVERIFY2(!Schedule::isDue(settings, 48h), "updates are paused");
        settings = active(AutoUpdate::daily);
        settings.lastAppliedSignature.reset();
        QVERIFY2(!Schedule::isDue(settings, 48h), "no profile was applied yet");
    }

    void onlyMoreThanTwentySecondsWithoutInputAreIdle() {
        QVERIFY(!Schedule::isIdle(0s));
        QVERIFY(!Schedule::isIdle(20s));
        QVERIFY(Schedule::isIdle(20'001ms));
        QVERIFY(!Schedule::isIdle(std::nullopt));
    }

    void aChangeByHandIsALayoutOtherThanTheOneLastApplied() {
        const QStringList other = {u"org.example.b"_s, u"org.example.a"_s};
        QVERIFY(Schedule::isChangedByHand(active(AutoUpdate::daily), other));
        QVERIFY(!Schedule::isChangedByHand(active(AutoUpdate::daily), applied));
        QVERIFY2(!Schedule::isChangedByHand(active(AutoUpdate::off), other), "updates are off");
        AppSettings settings = active(AutoUpdate::daily);
        settings.autoPaused = true;
        QVERIFY2(!Schedule::isChangedByHand(settings, other), "updates are paused already");
        settings = active(AutoUpdate::daily);
        settings.lastAppliedSignature.reset();
        QVERIFY2(!Schedule::isChangedByHand(settings, other), "no profile was applied yet");
    }
};

QTEST_GUILESS_MAIN(ScheduleTest)
#include "ScheduleTest.moc"
