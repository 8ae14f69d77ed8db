#include "Kelvane/AppModel.h"

#include "DockCore/Storage/JSONFile.h"
#include "DockCore/Storage/Paths.h"
#include "Kelvane/UsageTracker.h"
#include "Support/FakeWorkspace.h"
#include "Support/ModelWorld.h"

#include <QFile>
#include <QTest>

using namespace DockCore;
using namespace Kelvane;
using namespace Fakes;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Seconds = std::chrono::duration<double>;

namespace {

/// What a user has who finished the first run, applied the Dock of the world an age ago and wants hourly updates.
AppSettings seasoned(const QDateTime& now) {
    AppSettings settings;
    settings.onboarded = true;
    settings.autoUpdate = AutoUpdate::hourly;
    settings.lastAppliedSignature = ModelWorld::bundleIDs({u"a"_s, u"b"_s});
    settings.lastApplied = now.addDays(-10);
    return settings;
}

} // namespace
Q_DECLARE_METATYPE(DockCore::AppSettings)

/// Automatic updates, with a Dock of the applications a and b and an active profile that wants c and a.
class AutoUpdateTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aCheckAppliesOnlyWhenEverythingSpeaksForIt_data();
    void aCheckAppliesOnlyWhenEverythingSpeaksForIt();
    void withoutAWorkspaceTheScheduleIsKept();
    void theUserIsNotLookedForBeforeAnUpdateIsDue();
    void usageIsSavedBeforeTheRankingLooks();
    void aDeclinedCheckSavesNothing();
    void aSilentApplySaysNothingAndRecordsEverything();
    void aSilentConfirmationSaysNothingAndRecordsEverything();
    void aFailedSilentApplyIsTold();
    void theIntervalCountsFromTheLastApplyOfEitherKind();
    void aChangeByHandPausesAtTheNextRefresh_data();
    void aChangeByHandPausesAtTheNextRefresh();
    void aChangeByHandIsCaughtByTheCheckItself();
    void aPauseIsKeptAcrossStarts();
    void aChangeWhileUpdatesAreOffPausesOnceTheyAreOn();
    void switchingOffClearsThePause();
    void resumingReplacesTheUsersArrangement();
    void aRestoredDockIsLeftAloneUntilTheUserResumes();
    void aRestoreWithUpdatesOffLeavesNoPauseBehind();
    void aManualApplyEndsThePause();
    void aCheckDuringAChangeDoesNotOverlapIt();
    void anApplyThatOutlastsTheModelIsRecorded();
    void aRestoreThatOutlastsTheModelIsRecorded();
    void aClockThatJumpsMakesNothingDue_data();
    void aClockThatJumpsMakesNothingDue();
    void theCheckComesEveryTwoMinutesAndNotAtTheStart();
    void everyFiringOfTheTimerIsACheck();

private:
    void startWith(const AppSettings& settings);
    /// Lets one check of the schedule happen and waits for everything it began; whether it began anything.
    bool check();
    QStringList dock() const { return world->dock(); }

    std::optional<ModelWorld> world;
    std::optional<Fakes::Workspace> workspace;
    std::optional<AppModel> model;
};

void AutoUpdateTest::init() {
    world.emplace();
    workspace.emplace();
    workspace->idle = 1h;
}

void AutoUpdateTest::cleanup() {
    model.reset();
    workspace.reset();
    world.reset();
}

void AutoUpdateTest::startWith(const AppSettings& settings) {
    model.reset();
    JSONFile::save(settings.toJson(), world->paths().settings());
    model.emplace(world->services(), world->paths(), &*workspace, nullptr);
    pinActive(*model, {u"c"_s, u"a"_s});
}

bool AutoUpdateTest::check() {
    QSignalSpy began(&*model, &AppModel::currentChanged);
    QSignalSpy refreshed(&*model, &AppModel::refreshed);
    model->autoCheck();
    if (began.isEmpty())
        return false;
    if (refreshed.isEmpty() && !refreshed.wait(10'000))
        qFatal("a refresh that began never ended");
    if (model->isWorking() && !waitForChange(*model))
        qFatal("a change that began never ended");
    return true;
}

void AutoUpdateTest::aCheckAppliesOnlyWhenEverythingSpeaksForIt_data() {
    QTest::addColumn<AppSettings>("settings");
    QTest::addColumn<std::optional<Seconds>>("idle");
    QTest::addColumn<bool>("applies");

    ModelWorld clocks;
    const QDateTime now = clocks.clock.now();
    const AppSettings ready = seasoned(now);
    const std::optional<Seconds> away = 1h;
    const auto with = [&ready](auto change) {
        AppSettings settings = ready;
        change(settings);
        return settings;
    };
    const auto applied = [&](AutoUpdate interval, qint64 seconds) {
        return with([&](AppSettings& settings) {
            settings.autoUpdate = interval;
            settings.lastApplied = now.addSecs(-seconds);
        });
    };
    QTest::newRow("everything speaks for it") << ready << away << true;
    QTest::newRow("the first run is not finished")
        << with([](AppSettings& settings) { settings.onboarded = false; }) << away << false;
    QTest::newRow("updates are off, however long ago") << applied(AutoUpdate::off, 86'400L * 365) << away << false;
    QTest::newRow("updates are paused") << with([](AppSettings& settings) { settings.autoPaused = true; }) << away
                                        << false;
    QTest::newRow("before the first apply, even hourly")
        << with([](AppSettings& settings) { settings.lastAppliedSignature.reset(); }) << away << false;
    QTest::newRow("daily, 23 hours ago") << applied(AutoUpdate::daily, 82'800) << away << false;
    QTest::newRow("daily, a second too early") << applied(AutoUpdate::daily, 86'399) << away << false;
    QTest::newRow("daily, 24 hours ago") << applied(AutoUpdate::daily, 86'400) << away << true;
    QTest::newRow("every four hours, a second too early") << applied(AutoUpdate::every4Hours, 14'399) << away << false;
    QTest::newRow("every four hours, to the second") << applied(AutoUpdate::every4Hours, 14'400) << away << true;
    QTest::newRow("hourly, a second too early") << applied(AutoUpdate::hourly, 3'599) << away << false;
    QTest::newRow("hourly, to the second") << applied(AutoUpdate::hourly, 3'600) << away << true;
    QTest::newRow("applied in the future, as a clock set back makes it")
        << applied(AutoUpdate::hourly, -100'000) << away << false;
    QTest::newRow("a signature without a date counts as long ago")
        << with([](AppSettings& settings) { settings.lastApplied.reset(); }) << away << true;
    QTest::newRow("the user types, however overdue")
        << applied(AutoUpdate::hourly, 86'400L * 365) << std::optional<Seconds>(0s) << false;
    QTest::newRow("exactly 20 seconds without input are not enough") << ready << std::optional<Seconds>(20s) << false;
    QTest::newRow("just above 20 seconds without input") << ready << std::optional<Seconds>(20.001) << true;
    QTest::newRow("a desktop that cannot tell may have somebody at it") << ready << std::optional<Seconds>() << false;
    QTest::newRow("where nobody can be, nobody is disturbed")
        << ready << std::optional<Seconds>(Seconds::max()) << true;
}

void AutoUpdateTest::aCheckAppliesOnlyWhenEverythingSpeaksForIt() {
    QFETCH(AppSettings, settings);
    QFETCH(std::optional<Seconds>, idle);
    QFETCH(bool, applies);
    startWith(settings);
    workspace->idle = idle;
    QCOMPARE(check(), applies);
    QCOMPARE(dock(), applies ? QStringList({u"c"_s, u"a"_s}) : QStringList({u"a"_s, u"b"_s}));
    QCOMPARE(model->settings().autoPaused, settings.autoPaused);
    QVERIFY(!model->toast());
}

void AutoUpdateTest::withoutAWorkspaceTheScheduleIsKept() {
    JSONFile::save(seasoned(world->clock.now()).toJson(), world->paths().settings());
    model.emplace(world->services(), world->paths(), nullptr, nullptr);
    pinActive(*model, {u"c"_s, u"a"_s});
    QVERIFY(check());
    QCOMPARE(dock(), QStringList({u"c"_s, u"a"_s}));
}

void AutoUpdateTest::theUserIsNotLookedForBeforeAnUpdateIsDue() {
    AppSettings settings = seasoned(world->clock.now());
    settings.lastApplied = world->clock.now();
    startWith(settings);
    QVERIFY(!check());
    QCOMPARE(workspace->inputQuestions, 0);
    world->clock.advance(1h);
    QVERIFY(check());
    QCOMPARE(workspace->inputQuestions, 1);
}

void AutoUpdateTest::usageIsSavedBeforeTheRankingLooks() {
    startWith(seasoned(world->clock.now()));
    model->start();
    QSignalSpy refreshed(&*model, &AppModel::refreshed);
    QVERIFY(refreshed.wait(10'000));
    workspace->idle = 21s;
    workspace->front = Fakes::Workspace::regular(ModelWorld::bundleID(u"d"_s), u"d"_s);
    for (int tick = 0; tick < 4; ++tick) {
        world->clock.advance(10s);
        model->tracker().sample();
    }
    QVERIFY(!QFile::exists(world->paths().usage()));
    QVERIFY(check());
    QVERIFY(QFile::remove(world->paths().usage()));
    const auto& ranking = model->rankings().value(UsageWindow::week);
    QCOMPARE(ranking.size(), 1);
    QCOMPARE(ranking.constFirst().seconds, 40.0);
    // The count to the next save began anew.
    for (int tick = 0; tick < 5; ++tick) {
        world->clock.advance(10s);
        model->tracker().sample();
    }
    QVERIFY(!QFile::exists(world->paths().usage()));
    world->clock.advance(10s);
    model->tracker().sample();
    QVERIFY(QFile::exists(world->paths().usage()));
}

void AutoUpdateTest::aDeclinedCheckSavesNothing() {
    startWith(seasoned(world->clock.now()));
    model->tracker().start();
    workspace->front.reset();
    workspace->activate(Fakes::Workspace::regular(ModelWorld::bundleID(u"d"_s)));
    QVERIFY(model->usage().isDirty());
    workspace->idle = 3s;
    QVERIFY(!check());
    QVERIFY(model->usage().isDirty());
    QVERIFY(!QFile::exists(world->paths().usage()));
}

void AutoUpdateTest::aSilentApplySaysNothingAndRecordsEverything() {
    startWith(seasoned(world->clock.now()));
    QSignalSpy toasts(&*model, &AppModel::toastChanged);
    const QDateTime now = world->clock.now();
    QVERIFY(check());
    QCOMPARE(toasts.count(), 0);
    QCOMPARE(model->settings().lastAppliedSignature, ModelWorld::bundleIDs({u"c"_s, u"a"_s}));
    QVERIFY(model->settings().lastApplied >= now);
    QVERIFY(!model->settings().autoPaused);
    QCOMPARE(model->snapshots().size(), 1);
}

void AutoUpdateTest::aSilentConfirmationSaysNothingAndRecordsEverything() {
    AppSettings settings = seasoned(world->clock.now());
    settings.lastAppliedSignature = ModelWorld::bundleIDs({u"c"_s, u"a"_s});
    world->setDock({u"c"_s, u"a"_s});
    startWith(settings);
    const int saves = world->preferences.saves;
    QVERIFY(check());
    QVERIFY(!model->toast());
    QCOMPARE(world->preferences.saves, saves);
    QVERIFY(model->snapshots().isEmpty());
    QCOMPARE(model->settings().lastApplied, world->clock.now());
    QVERIFY(!check());
}

void AutoUpdateTest::aFailedSilentApplyIsTold() {
    startWith(seasoned(world->clock.now()));
    world->preferences.refusesToSave = true;
    QVERIFY(check());
    QVERIFY(model->toast());
    QVERIFY(model->toast()->isError);
    QCOMPARE(model->settings().lastAppliedSignature, ModelWorld::bundleIDs({u"a"_s, u"b"_s}));
    // It stays due and is tried again.
    world->preferences.refusesToSave = false;
    QVERIFY(check());
    QCOMPARE(dock(), QStringList({u"c"_s, u"a"_s}));
}

void AutoUpdateTest::theIntervalCountsFromTheLastApplyOfEitherKind() {
    startWith(seasoned(world->clock.now()));
    QVERIFY(check());
    world->clock.advance(59min);
    QVERIFY(!check());
    // Confirming that the Dock matches counts like an apply.
    model->applyActive(AppModel::Notify::always);
    QVERIFY(!model->isWorking());
    world->clock.advance(59min);
    QVERIFY(!check());
    world->clock.advance(1min);
    QVERIFY(check());
}

void AutoUpdateTest::aChangeByHandPausesAtTheNextRefresh_data() {
    QTest::addColumn<QStringList>("byHand");
    QTest::addColumn<bool>("pauses");
    QTest::newRow("nothing was changed") << QStringList{u"a"_s, u"b"_s} << false;
    QTest::newRow("an application was added") << QStringList{u"a"_s, u"b"_s, u"e"_s} << true;
    QTest::newRow("an application was removed") << QStringList{u"a"_s} << true;
    QTest::newRow("two changed places") << QStringList{u"b"_s, u"a"_s} << true;
    QTest::newRow("everything was removed") << QStringList() << true;
    QTest::newRow("it became what the profile wants") << QStringList{u"c"_s, u"a"_s} << true;
}

void AutoUpdateTest::aChangeByHandPausesAtTheNextRefresh() {
    QFETCH(QStringList, byHand);
    QFETCH(bool, pauses);
    startWith(seasoned(world->clock.now()));
    world->setDock(byHand);
    QVERIFY(refreshAndWait(*model));
    QCOMPARE(model->settings().autoPaused, pauses);
    QVERIFY(!model->toast());
    QCOMPARE(check(), !pauses);
    QCOMPARE(dock(), pauses ? byHand : QStringList({u"c"_s, u"a"_s}));
}

void AutoUpdateTest::aChangeByHandIsCaughtByTheCheckItself() {
    startWith(seasoned(world->clock.now()));
    world->setDock({u"e"_s});
    QVERIFY(check());
    QVERIFY(model->settings().autoPaused);
    QCOMPARE(dock(), QStringList{u"e"_s});
    QVERIFY(!check());
}

void AutoUpdateTest::aPauseIsKeptAcrossStarts() {
    startWith(seasoned(world->clock.now()));
    world->setDock({u"e"_s});
    QVERIFY(check());
    model.reset();
    model.emplace(world->services(), world->paths(), &*workspace, nullptr);
    QVERIFY(model->settings().autoPaused);
    QVERIFY(!check());
}

void AutoUpdateTest::aChangeWhileUpdatesAreOffPausesOnceTheyAreOn() {
    AppSettings settings = seasoned(world->clock.now());
    settings.autoUpdate = AutoUpdate::off;
    startWith(settings);
    world->setDock({u"e"_s});
    QVERIFY(refreshAndWait(*model));
    QVERIFY(!model->settings().autoPaused);
    model->setAutoUpdate(AutoUpdate::daily);
    QVERIFY(!model->settings().autoPaused);
    QVERIFY(refreshAndWait(*model));
    QVERIFY(model->settings().autoPaused);
}

void AutoUpdateTest::switchingOffClearsThePause() {
    AppSettings settings = seasoned(world->clock.now());
    settings.autoPaused = true;
    startWith(settings);
    model->setAutoUpdate(AutoUpdate::every4Hours);
    QVERIFY(model->settings().autoPaused);
    model->setAutoUpdate(AutoUpdate::off);
    QVERIFY(!model->settings().autoPaused);
    model->setAutoUpdate(AutoUpdate::hourly);
    QVERIFY(!model->settings().autoPaused);
    QVERIFY(check());
    QCOMPARE(dock(), QStringList({u"c"_s, u"a"_s}));
}

void AutoUpdateTest::resumingReplacesTheUsersArrangement() {
    startWith(seasoned(world->clock.now()));
    world->setDock({u"e"_s});
    QVERIFY(check());
    QVERIFY(model->settings().autoPaused);
    model->resumeAuto();
    QVERIFY(waitForChange(*model));
    QVERIFY(!model->settings().autoPaused);
    QCOMPARE(dock(), QStringList({u"c"_s, u"a"_s}));
    QCOMPARE(model->toast(), (Toast{u"Dock updated for Work."_s, false}));
    QCOMPARE(model->settings().lastAppliedSignature, ModelWorld::bundleIDs({u"c"_s, u"a"_s}));
}

void AutoUpdateTest::aRestoredDockIsLeftAloneUntilTheUserResumes() {
    startWith(seasoned(world->clock.now()));
    QVERIFY(check());
    model->restorePrevious();
    QVERIFY(waitForChange(*model));
    QCOMPARE(dock(), QStringList({u"a"_s, u"b"_s}));
    QVERIFY(model->settings().autoPaused);
    QVERIFY(!model->settings().lastAppliedSignature);
    for (int day = 0; day < 3; ++day) {
        world->clock.advance(24h);
        QVERIFY(!check());
    }
    QCOMPARE(dock(), QStringList({u"a"_s, u"b"_s}));
    model->resumeAuto();
    QVERIFY(waitForChange(*model));
    QCOMPARE(dock(), QStringList({u"c"_s, u"a"_s}));
    pinActive(*model, {u"d"_s});
    world->clock.advance(1h);
    QVERIFY(check());
    QCOMPARE(dock(), QStringList{u"d"_s});
}

void AutoUpdateTest::aRestoreWithUpdatesOffLeavesNoPauseBehind() {
    AppSettings settings = seasoned(world->clock.now());
    startWith(settings);
    QVERIFY(check());
    model->setAutoUpdate(AutoUpdate::off);
    model->restorePrevious();
    QVERIFY(waitForChange(*model));
    QVERIFY(!model->settings().autoPaused);
    // Nothing was applied since, so that nothing is compared or applied either.
    model->setAutoUpdate(AutoUpdate::hourly);
    world->clock.advance(48h);
    QVERIFY(!check());
    QVERIFY(!model->settings().autoPaused);
}

void AutoUpdateTest::aManualApplyEndsThePause() {
    AppSettings settings = seasoned(world->clock.now());
    settings.autoPaused = true;
    startWith(settings);
    model->applyActive(AppModel::Notify::always);
    QVERIFY(waitForChange(*model));
    QVERIFY(!model->settings().autoPaused);
    world->clock.advance(1h);
    QVERIFY(check());
}

void AutoUpdateTest::aCheckDuringAChangeDoesNotOverlapIt() {
    startWith(seasoned(world->clock.now()));
    Gate gate;
    world->holdRestarts(gate);
    model->applyActive(AppModel::Notify::always);
    QVERIFY(model->isWorking());
    pinActive(*model, {u"d"_s});
    QSignalSpy refreshed(&*model, &AppModel::refreshed);
    model->autoCheck();
    QVERIFY(refreshed.wait(10'000));
    QVERIFY(model->isWorking());
    QVERIFY(!model->settings().autoPaused);
    gate.open();
    QVERIFY(waitForChange(*model));
    QCOMPARE(dock(), QStringList({u"c"_s, u"a"_s}));
    QCOMPARE(model->snapshots().size(), 1);
}

void AutoUpdateTest::anApplyThatOutlastsTheModelIsRecorded() {
    startWith(seasoned(world->clock.now()));
    Gate gate;
    world->holdRestarts(gate);
    bool isAnswered = false;
    model->applyActive(AppModel::Notify::always, [&isAnswered](const Outcome&) { isAnswered = true; });
    QTRY_COMPARE(dock(), QStringList({u"c"_s, u"a"_s}));
    gate.open();
    model.reset();
    QVERIFY(!isAnswered);
    model.emplace(world->services(), world->paths(), &*workspace, nullptr);
    QCOMPARE(model->settings().lastAppliedSignature, ModelWorld::bundleIDs({u"c"_s, u"a"_s}));
    QVERIFY(refreshAndWait(*model));
    QVERIFY(!model->settings().autoPaused);
}

void AutoUpdateTest::aRestoreThatOutlastsTheModelIsRecorded() {
    startWith(seasoned(world->clock.now()));
    QVERIFY(check());
    Gate gate;
    world->holdRestarts(gate);
    model->restorePrevious();
    QTRY_COMPARE(dock(), QStringList({u"a"_s, u"b"_s}));
    gate.open();
    model.reset();
    model.emplace(world->services(), world->paths(), &*workspace, nullptr);
    QVERIFY(model->settings().autoPaused);
    QVERIFY(!model->settings().lastAppliedSignature);
}

void AutoUpdateTest::aClockThatJumpsMakesNothingDue_data() {
    QTest::addColumn<QDateTime>("wall");
    const auto at = [](const char* moment) { return QDateTime::fromString(QLatin1StringView(moment), Qt::ISODate); };
    QTest::newRow("a day forward") << at("2026-03-12T10:00:00Z");
    QTest::newRow("ten years forward") << at("2036-03-12T10:00:00Z");
    QTest::newRow("a day back") << at("2026-03-10T10:00:00Z");
    QTest::newRow("ten years back") << at("2016-03-12T10:00:00Z");
}

void AutoUpdateTest::aClockThatJumpsMakesNothingDue() {
    QFETCH(QDateTime, wall);
    startWith(seasoned(world->clock.now()));
    QVERIFY(check());
    world->clock.set(wall);
    QVERIFY(!check());
    world->clock.advance(1h - 1s);
    QVERIFY(!check());
    // And nothing late.
    world->clock.advance(1s);
    QVERIFY(check());
}

void AutoUpdateTest::theCheckComesEveryTwoMinutesAndNotAtTheStart() {
    startWith(seasoned(world->clock.now()));
    QSignalSpy refreshed(&*model, &AppModel::refreshed);
    model->start();
    QVERIFY(refreshed.wait(10'000));
    QVERIFY(refreshAndWait(*model));
    QCOMPARE(dock(), QStringList({u"a"_s, u"b"_s}));
    QCOMPARE(workspace->inputQuestions, 0);
    const auto timers = model->findChildren<QTimer*>(Qt::FindDirectChildrenOnly);
    QCOMPARE(timers.size(), 1);
    QCOMPARE(timers.constFirst()->intervalAsDuration(), 120s);
    QVERIFY(timers.constFirst()->isActive());
    QVERIFY(timers.constFirst()->timerType() != Qt::PreciseTimer);
}

void AutoUpdateTest::everyFiringOfTheTimerIsACheck() {
    startWith(seasoned(world->clock.now()));
    workspace->idle = 3s;
    model->start();
    const auto timers = model->findChildren<QTimer*>(Qt::FindDirectChildrenOnly);
    for (int firing = 1; firing <= 3; ++firing) {
        QVERIFY(QMetaObject::invokeMethod(timers.constFirst(), "timeout"));
        QCOMPARE(workspace->inputQuestions, firing);
    }
}

QTEST_GUILESS_MAIN(AutoUpdateTest)
#include "AutoUpdateTest.moc"
