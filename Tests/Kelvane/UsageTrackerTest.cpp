#include "Kelvane/UsageTracker.h"

#include "DockCore/UsageStore.h"
#include "Support/FakeServices.h"
#include "Support/FakeWorkspace.h"

#include <QFile>
#include <QSignalSpy>
#include <QTest>

#include <ctime>
#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Kelvane::RunningApplication;
using Kelvane::UsageTracker;
using Seconds = std::chrono::duration<double>;

namespace {

const RunningApplication& mail() {
    static const RunningApplication application = Fakes::Workspace::regular(u"com.example.Mail"_s, u"Mail"_s);
    return application;
}
const RunningApplication& notes() {
    static const RunningApplication application = Fakes::Workspace::regular(u"com.example.Notes"_s, u"Notes"_s);
    return application;
}

/// A tracker that was started with Mail in front, on a desktop and a clock that only move by hand.
struct Desk {
    Desk() {
        workspace.front = mail();
        tracker.start();
    }

    /// Time passes, then comes a tick.
    void tickAfter(std::chrono::nanoseconds time) {
        world.clock.advance(time);
        tracker.sample();
    }
    double seconds(const RunningApplication& application = mail()) {
        return today().seconds.value(application.bundleID.value_or(QString()));
    }
    qint64 activations(const RunningApplication& application = mail()) {
        return today().activations.value(application.bundleID.value_or(QString()));
    }
    DockCore::DayUsage today() {
        return usage.day(DockCore::UsageStore::dayKey(world.clock.now())).value_or(DockCore::DayUsage());
    }
    /// Whether the file was written since the last call.
    bool wasSaved() const { return QFile::remove(file); }

    Fakes::World world;
    QString file = world.directory.filePath(u"usage.json"_s);
    DockCore::UsageStore usage = DockCore::UsageStore(file);
    Fakes::Workspace workspace;
    UsageTracker tracker = UsageTracker(usage, world.clock, &workspace);
};

} // namespace

class UsageTrackerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void oneTickCredits_data();
    void oneTickCredits();
    void onlyRegularApplicationsOfABundleCount_data();
    void onlyRegularApplicationsOfABundleCount();

    void ticksOfUnevenLengthCreditWhatPassed();
    void aLateTickIsLostAndTheNextOneCounts();
    void theFirstTickAfterAWakeMeasuresFromTheWake();
    void aPauseCreditsNothingOfTheIntervalThatItEnds();
    void aPauseDoesNotMoveTheLastTick();
    void overlappingPausesEndWithTheFirstReturn();
    void screensFoundAsleepByTheTickItselfCreditNothing();
    void theFrontApplicationIsNotAskedForWhileNobodyIsThere();
    void switchingOffStopsSecondsAndActivationsAtOnce();
    void switchingOnCreditsNothingOfTheTimeOff();
    void switchingOnWhenOnChangesNothing();
    void activationsAreCountedAndNamed();
    void anActivationIsNotSavedByItself();
    void activationsCountWhileTheScreenIsLocked();
    void nothingIsCountedBeforeTheStart();
    void theTimeBeforeTheStartIsNotCredited();
    void theSixthCreditedTickSaves();
    void uncreditedTicksDoNotAdvanceTheSaveCount();
    void aFlushSavesAtOnceAndBeginsTheCountAnew();
    void aClockSetBackOrForwardCreditsWhatPassed_data();
    void aClockSetBackOrForwardCreditsWhatPassed();
    void aTickBelongsToTheDayOnWhichItEnds();
    void aTimeZoneThatChangesMovesTheDayAndNoSeconds();
    void withoutAWorkspaceNothingIsCredited();
    void aWorkspaceThatGoesAndComesBackIsPickedUpAgain();
    void aWorkspaceOutlivesItsTracker();
    void theTimerTicksEveryTenSeconds();
};

void UsageTrackerTest::initTestCase() {
    qputenv("TZ", "Europe/Berlin");
    tzset();
}

void UsageTrackerTest::oneTickCredits_data() {
    QTest::addColumn<qint64>("elapsed");
    QTest::addColumn<std::optional<Seconds>>("idle");
    QTest::addColumn<double>("credited");
    const auto row = [](const char* name, std::chrono::nanoseconds elapsed, std::optional<Seconds> idle,
                        double credited) {
        QTest::newRow(name) << static_cast<qint64>(elapsed.count()) << idle << credited;
    };
    row("a tick of 10.2 seconds credits 10.2 seconds", 10'200ms, 0s, 10.2);
    row("just below 30 seconds is credited", 30s - 1ns, 0s, 29.999999999);
    row("exactly 30 seconds is refused", 30s, 0s, 0);
    row("31 seconds is refused and not capped", 31s, 0s, 0);
    row("a night is refused", 8h, 0s, 0);
    row("299 seconds without input are credited", 10s, 299s, 10);
    row("just below 300 seconds without input is credited", 10s, Seconds(299.999), 10);
    row("exactly 300 seconds without input are refused", 10s, 300s, 0);
    row("an hour without input is refused", 10s, 1h, 0);
    row("an input time that cannot be told is refused", 10s, std::nullopt, 0);
    row("a tick at the same moment credits nothing", 0s, 0s, 0);
}

void UsageTrackerTest::oneTickCredits() {
    QFETCH(qint64, elapsed);
    QFETCH(std::optional<Seconds>, idle);
    QFETCH(double, credited);
    Desk desk;
    desk.workspace.idle = idle;
    desk.tickAfter(std::chrono::nanoseconds(elapsed));
    QCOMPARE(desk.seconds(), credited);
}

void UsageTrackerTest::onlyRegularApplicationsOfABundleCount_data() {
    QTest::addColumn<bool>("isRegular");
    QTest::addColumn<QString>("bundleID");
    QTest::addColumn<bool>("counts");
    QTest::newRow("a regular application of a bundle counts") << true << u"com.example.Mail"_s << true;
    QTest::newRow("an accessory in the menu bar counts neither seconds nor activations")
        << false << u"com.example.Mail"_s << false;
    QTest::newRow("a program outside any bundle counts not at all") << true << QString() << false;
    QTest::newRow("our own application counts like any other") << true << u"com.example.Kelvane"_s << true;
}

void UsageTrackerTest::onlyRegularApplicationsOfABundleCount() {
    QFETCH(bool, isRegular);
    QFETCH(QString, bundleID);
    QFETCH(bool, counts);
    Desk desk;
    RunningApplication application = Fakes::Workspace::regular(bundleID, u"It"_s);
    application.isRegular = isRegular;
    if (bundleID.isNull())
        application.bundleID.reset();
    desk.workspace.front.reset();
    desk.workspace.activate(application);
    desk.tickAfter(10s);
    QCOMPARE(desk.activations(application), counts ? 1 : 0);
    QCOMPARE(desk.seconds(application), counts ? 10.0 : 0.0);
    QCOMPARE(desk.usage.isDirty(), counts);
}

void UsageTrackerTest::ticksOfUnevenLengthCreditWhatPassed() {
    Desk desk;
    desk.tickAfter(10'200ms);
    desk.tickAfter(9'700ms);
    desk.workspace.activate(notes());
    desk.tickAfter(11s);
    QCOMPARE(desk.seconds(), 19.9);
    QCOMPARE(desk.seconds(notes()), 11.0);
    QCOMPARE(desk.usage.name(u"com.example.Mail"_s), u"Mail"_s);
}

void UsageTrackerTest::aLateTickIsLostAndTheNextOneCounts() {
    Desk desk;
    desk.tickAfter(31s);
    QCOMPARE(desk.seconds(), 0.0);
    desk.tickAfter(10s);
    QCOMPARE(desk.seconds(), 10.0);
}

void UsageTrackerTest::theFirstTickAfterAWakeMeasuresFromTheWake() {
    Desk desk;
    desk.tickAfter(10s);
    desk.workspace.pause();
    desk.world.clock.advance(15s);
    desk.workspace.resume();
    desk.tickAfter(4s);
    QCOMPARE(desk.seconds(), 14.0);
}

void UsageTrackerTest::aPauseCreditsNothingOfTheIntervalThatItEnds() {
    Desk desk;
    desk.tickAfter(10s);
    desk.world.clock.advance(9s);
    desk.workspace.pause();
    desk.tickAfter(1s);
    QCOMPARE(desk.seconds(), 10.0);
    desk.tickAfter(10s);
    QCOMPARE(desk.seconds(), 10.0);
}

void UsageTrackerTest::aPauseDoesNotMoveTheLastTick() {
    Desk desk;
    desk.world.clock.advance(20s);
    desk.workspace.pause();
    desk.workspace.pause();
    // The first tick after the pause lies 30 seconds behind the last one; the second one shows that the first moved it.
    desk.tickAfter(10s);
    desk.workspace.resume();
    desk.tickAfter(10s);
    QCOMPARE(desk.seconds(), 10.0);
}

void UsageTrackerTest::overlappingPausesEndWithTheFirstReturn() {
    Desk desk;
    desk.workspace.pause(); // the screen is locked
    desk.workspace.pause(); // and then the machine sleeps
    desk.world.clock.advance(1h);
    desk.workspace.resume();
    desk.tickAfter(10s);
    QCOMPARE(desk.seconds(), 10.0);
    desk.workspace.resume();
    desk.tickAfter(10s);
    QCOMPARE(desk.seconds(), 20.0);
}

void UsageTrackerTest::screensFoundAsleepByTheTickItselfCreditNothing() {
    Desk desk;
    desk.workspace.sleepsWhenAsked = true;
    desk.tickAfter(10s);
    QCOMPARE(desk.seconds(), 0.0);
    desk.workspace.sleepsWhenAsked = false;
    desk.workspace.resume();
    desk.tickAfter(10s);
    QCOMPARE(desk.seconds(), 10.0);
}

void UsageTrackerTest::theFrontApplicationIsNotAskedForWhileNobodyIsThere() {
    Desk desk;
    desk.workspace.idle = 300s;
    desk.tickAfter(10s);
    desk.workspace.idle = 0s;
    desk.workspace.pause();
    desk.tickAfter(10s);
    QCOMPARE(desk.workspace.questions, 0);
}

void UsageTrackerTest::switchingOffStopsSecondsAndActivationsAtOnce() {
    Desk desk;
    desk.tickAfter(10s);
    desk.world.clock.advance(5s);
    desk.tracker.setEnabled(false);
    desk.workspace.activate(notes());
    desk.tickAfter(5s);
    desk.tickAfter(10s);
    QVERIFY(!desk.tracker.isEnabled());
    QCOMPARE(desk.seconds(), 10.0);
    QCOMPARE(desk.seconds(notes()), 0.0);
    QCOMPARE(desk.activations(notes()), 0);
}

void UsageTrackerTest::switchingOnCreditsNothingOfTheTimeOff() {
    Desk desk;
    desk.tickAfter(10s);
    desk.tracker.setEnabled(false);
    desk.tickAfter(10s);
    desk.world.clock.advance(6s);
    desk.tracker.setEnabled(true);
    desk.tickAfter(4s);
    QCOMPARE(desk.seconds(), 14.0);
    desk.tickAfter(10s);
    QCOMPARE(desk.seconds(), 24.0);
}

void UsageTrackerTest::switchingOnWhenOnChangesNothing() {
    Desk desk;
    desk.world.clock.advance(6s);
    desk.tracker.setEnabled(true);
    desk.tickAfter(4s);
    QCOMPARE(desk.seconds(), 10.0);
}

void UsageTrackerTest::activationsAreCountedAndNamed() {
    Desk desk;
    desk.workspace.activate(notes());
    desk.workspace.activate(mail());
    desk.workspace.activate(notes());
    desk.workspace.activate(Fakes::Workspace::regular(u"com.example.Nameless"_s));
    QCOMPARE(desk.activations(notes()), 2);
    QCOMPARE(desk.activations(mail()), 1);
    QCOMPARE(desk.usage.name(u"com.example.Notes"_s), u"Notes"_s);
    QCOMPARE(desk.usage.name(u"com.example.Nameless"_s), std::optional<QString>());
    QCOMPARE(desk.seconds(notes()), 0.0);
}

void UsageTrackerTest::anActivationIsNotSavedByItself() {
    Desk desk;
    for (int i = 0; i < 20; ++i)
        desk.workspace.activate(i % 2 == 0 ? notes() : mail());
    QVERIFY(!desk.wasSaved());
    QVERIFY(desk.usage.isDirty());
}

void UsageTrackerTest::activationsCountWhileTheScreenIsLocked() {
    Desk desk;
    desk.workspace.pause();
    desk.workspace.activate(notes());
    QCOMPARE(desk.activations(notes()), 1);
}

void UsageTrackerTest::nothingIsCountedBeforeTheStart() {
    Fakes::World world;
    DockCore::UsageStore usage(world.directory.filePath(u"usage.json"_s));
    Fakes::Workspace workspace;
    const UsageTracker tracker(usage, world.clock, &workspace);
    QVERIFY(tracker.isEnabled());
    workspace.activate(mail());
    QVERIFY(!usage.isDirty());
}

void UsageTrackerTest::theTimeBeforeTheStartIsNotCredited() {
    Fakes::World world;
    DockCore::UsageStore usage(world.directory.filePath(u"usage.json"_s));
    Fakes::Workspace workspace;
    workspace.front = mail();
    UsageTracker tracker(usage, world.clock, &workspace);
    world.clock.advance(15s);
    tracker.start();
    world.clock.advance(10s);
    tracker.sample();
    const auto day = usage.day(DockCore::UsageStore::dayKey(world.clock.now()));
    QVERIFY(day);
    QCOMPARE(day->seconds.value(u"com.example.Mail"_s), 10.0);
}

void UsageTrackerTest::theSixthCreditedTickSaves() {
    Desk desk;
    for (int save = 0; save < 3; ++save) {
        for (int tick = 0; tick < 5; ++tick) {
            desk.tickAfter(10s);
            QVERIFY(!desk.wasSaved());
        }
        desk.tickAfter(10s);
        QVERIFY(desk.wasSaved());
        QVERIFY(!desk.usage.isDirty());
    }
}

void UsageTrackerTest::uncreditedTicksDoNotAdvanceTheSaveCount() {
    Desk desk;
    for (int tick = 0; tick < 5; ++tick) {
        desk.tickAfter(10s);
        desk.tickAfter(30s);
        desk.workspace.idle = 400s;
        desk.tickAfter(10s);
        desk.workspace.idle = 0s;
        desk.workspace.pause();
        desk.tickAfter(10s);
        desk.workspace.resume();
        desk.workspace.front.reset();
        desk.tickAfter(10s);
        desk.workspace.front = mail();
    }
    QVERIFY(!desk.wasSaved());
    desk.tickAfter(10s);
    QVERIFY(desk.wasSaved());
    QCOMPARE(desk.seconds(), 60.0);
}

void UsageTrackerTest::aFlushSavesAtOnceAndBeginsTheCountAnew() {
    Desk desk;
    for (int tick = 0; tick < 4; ++tick)
        desk.tickAfter(10s);
    QVERIFY(!desk.wasSaved());
    desk.tracker.flush();
    QVERIFY(desk.wasSaved());
    for (int tick = 0; tick < 5; ++tick)
        desk.tickAfter(10s);
    QVERIFY(!desk.wasSaved());
    desk.tickAfter(10s);
    QVERIFY(desk.wasSaved());
}

void UsageTrackerTest::aClockSetBackOrForwardCreditsWhatPassed_data() {
    QTest::addColumn<QDateTime>("wall");
    const auto at = [](const char* moment) { return QDateTime::fromString(QLatin1StringView(moment), Qt::ISODate); };
    QTest::newRow("a second back") << at("2026-03-11T09:59:59Z");
    QTest::newRow("an hour back") << at("2026-03-11T09:00:00Z");
    QTest::newRow("an hour forward") << at("2026-03-11T11:00:00Z");
    QTest::newRow("ten years forward") << at("2036-03-11T10:00:00Z");
    QTest::newRow("to the day on which clocks begin") << at("1970-01-01T12:00:00Z");
}

void UsageTrackerTest::aClockSetBackOrForwardCreditsWhatPassed() {
    QFETCH(QDateTime, wall);
    Desk desk;
    desk.world.clock.set(wall);
    desk.tickAfter(10s);
    QCOMPARE(desk.seconds(), 10.0);
    // Nothing lies on any other day.
    desk.world.clock.set(QDateTime::fromString(u"2026-03-10T10:00:00Z"_s, Qt::ISODate));
    QCOMPARE(desk.seconds(), 0.0);
}

void UsageTrackerTest::aTickBelongsToTheDayOnWhichItEnds() {
    Desk desk;
    desk.world.clock.set(QDateTime::fromString(u"2026-03-11T22:59:40Z"_s, Qt::ISODate)); // 23:59:40 in Berlin
    desk.tickAfter(10s);
    desk.tickAfter(20s);
    QCOMPARE(desk.usage.day(u"2026-03-11"_s)->seconds.value(u"com.example.Mail"_s), 10.0);
    QCOMPARE(desk.usage.day(u"2026-03-12"_s)->seconds.value(u"com.example.Mail"_s), 20.0);
}

void UsageTrackerTest::aTimeZoneThatChangesMovesTheDayAndNoSeconds() {
    Desk desk;
    desk.world.clock.set(QDateTime::fromString(u"2026-03-11T20:00:00Z"_s, Qt::ISODate));
    desk.tickAfter(10s);
    qputenv("TZ", "Asia/Tokyo");
    tzset();
    desk.tickAfter(10s);
    qputenv("TZ", "Europe/Berlin");
    tzset();
    QCOMPARE(desk.usage.day(u"2026-03-11"_s)->seconds.value(u"com.example.Mail"_s), 10.0);
    QCOMPARE(desk.usage.day(u"2026-03-12"_s)->seconds.value(u"com.example.Mail"_s), 10.0);
}

void UsageTrackerTest::withoutAWorkspaceNothingIsCredited() {
    Fakes::World world;
    DockCore::UsageStore usage(world.directory.filePath(u"usage.json"_s));
    UsageTracker tracker(usage, world.clock, nullptr);
    tracker.start();
    for (int tick = 0; tick < 10; ++tick) {
        world.clock.advance(10s);
        tracker.sample();
    }
    tracker.flush();
    QVERIFY(!usage.trackingSince());
    QVERIFY(!QFile::exists(world.directory.filePath(u"usage.json"_s)));
}

void UsageTrackerTest::aWorkspaceThatGoesAndComesBackIsPickedUpAgain() {
    Desk desk;
    desk.tickAfter(10s);
    desk.workspace.isGone = true;
    desk.workspace.activate(notes());
    desk.tickAfter(10s);
    desk.tickAfter(10s);
    desk.workspace.isGone = false;
    desk.tickAfter(10s);
    QCOMPARE(desk.seconds(mail()), 10.0);
    QCOMPARE(desk.seconds(notes()), 10.0);
    QCOMPARE(desk.activations(notes()), 0);
}

void UsageTrackerTest::aWorkspaceOutlivesItsTracker() {
    Fakes::World world;
    DockCore::UsageStore usage(world.directory.filePath(u"usage.json"_s));
    Fakes::Workspace workspace;
    {
        UsageTracker tracker(usage, world.clock, &workspace);
        tracker.start();
        workspace.activate(mail());
    }
    workspace.activate(notes());
    workspace.pause();
    workspace.resume();
    const auto day = usage.day(DockCore::UsageStore::dayKey(world.clock.now()));
    QVERIFY(day);
    QCOMPARE(day->activations.keys(), QStringList{u"com.example.Mail"_s});
}

void UsageTrackerTest::theTimerTicksEveryTenSeconds() {
    const Desk desk;
    const auto timers = desk.tracker.findChildren<QTimer*>();
    QCOMPARE(timers.size(), 1);
    QCOMPARE(timers.constFirst()->intervalAsDuration(), 10s);
    QVERIFY(timers.constFirst()->isActive());
    QVERIFY(!timers.constFirst()->isSingleShot());
    // It may come up to two seconds late; a precise timer would wake the machine for itself alone.
    QVERIFY(timers.constFirst()->timerType() != Qt::PreciseTimer);
}

QTEST_GUILESS_MAIN(UsageTrackerTest)
#include "UsageTrackerTest.moc"
