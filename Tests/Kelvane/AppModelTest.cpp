#include "Kelvane/AppModel.h"

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

class AppModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        world.emplace();
        model.emplace(world->services(), world->paths(), nullptr, &login);
        pinActive(*model, {u"c"_s, u"a"_s});
    }
    void cleanup() {
        model.reset();
        world.reset();
        login = {};
    }

    void onlyTheNewestRefreshPublishes();
    void refreshReadsDockAndRanksBothWindows();
    void everyBundleIsReadOncePerRefresh();
    void applyWritesTheProposalAfterSavingTheDock();
    void applyToAMatchingDockOnlyConfirmsIt();
    void anEmptyProposalNeverEmptiesTheDock();
    void applyWhileAChangeRunsDoesNothing();
    void restoreWhileAChangeRunsDoesNothing();
    void aSilentApplySaysNothing();
    void aFailedSilentApplyIsStillTold();
    void aDockThatDoesNotHoldIsToldAndChangesNoSettings();
    void nothingIsWrittenWhenTheDockCannotBeSaved();
    void readingTheDockDuringOurOwnChangeIsNoManualChange();
    void restorePutsTheDockBackAndPauses();
    void restoreWithUpdatesOffDoesNotPause();
    void restorePreviousWithoutOneSaysSo();
    void activatingAppliesOnlyWhenAsked();
    void theOriginalIsSavedOnce();
    void startingSavesTheOriginal();
    void startingTakesTheTrackingFromTheSettings_data();
    void startingTakesTheTrackingFromTheSettings();
    void historyAndLoginItemAreKnownFromTheBeginning();
    void restorePreviousGoesByTheDockAsItIsNow();
    void applyGoesByTheDockAsItIsNow();
    void aRestoreIsSaved();
    void aFailedOriginalIsTriedAgainAtTheNextStart();
    void newProfilesAreNumbered_data();
    void newProfilesAreNumbered();
    void duplicatesKeepOneName();
    void theOnlyProfileStays();
    void removingTheActiveProfileActivatesTheFirstRemaining();
    void removingTheActiveProfileProposesTheNext();
    void updateIgnoresUnknownAndEqualProfiles();
    void updateOfAnotherProfileLeavesTheProposal();
    void aRefusedLoginItemShowsTheRealState();
    void aLoginItemSwitchedElsewhereIsSeen();
    void aToastIsDismissedOnlyWhileItIsTheSame();
    void erasingUsageKeepsProfilesAndSnapshots();
    void finishingTheFirstRunWithAnEmptyProposalStillEndsIt();

private:
    std::optional<ModelWorld> world;
    std::optional<AppModel> model;
    Fakes::LoginItem login;
};

void AppModelTest::onlyTheNewestRefreshPublishes() {
    QSignalSpy published(&*model, &AppModel::refreshed);
    QStringList ran;
    model->refresh([&ran] { ran.append(u"first"_s); });
    model->refresh([&ran] { ran.append(u"second"_s); });
    QVERIFY(published.wait());
    // The overtaken one has had its turn in the queue once a third has come through.
    QVERIFY(refreshAndWait(*model));
    QCOMPARE(ran, QStringList{u"second"_s});
    QCOMPARE(published.count(), 2);
}

void AppModelTest::refreshReadsDockAndRanksBothWindows() {
    QVERIFY(model->installed().isEmpty());
    QVERIFY(refreshAndWait(*model));
    QCOMPARE(layoutSignature(model->current()), ModelWorld::bundleIDs({u"a"_s, u"b"_s}));
    QCOMPARE(layoutSignature(model->proposal()), ModelWorld::bundleIDs({u"c"_s, u"a"_s}));
    QCOMPARE(model->installed().size(), 5);
    QCOMPARE(model->rankings().keys(), QList<UsageWindow>({UsageWindow::week, UsageWindow::month}));
}

void AppModelTest::everyBundleIsReadOncePerRefresh() {
    QVERIFY(refreshAndWait(*model));
    world->bundles.reads.clear();
    QVERIFY(refreshAndWait(*model));
    QCOMPARE(world->bundles.reads.values(), QList<int>(5, 1));
}

void AppModelTest::applyWritesTheProposalAfterSavingTheDock() {
    QVERIFY(refreshAndWait(*model));
    std::optional<Outcome> outcome;
    model->applyActive(AppModel::Notify::always, [&outcome](const Outcome& result) { outcome = result; });
    QVERIFY(model->isWorking());
    QVERIFY(waitForChange(*model));
    QCOMPARE(world->dock(), QStringList({u"c"_s, u"a"_s}));
    QCOMPARE(model->toast(), (Toast{u"Dock updated for Work."_s, false}));
    QCOMPARE(outcome, (Outcome{u"Dock updated for Work."_s, false, true}));
    QCOMPARE(model->snapshots().size(), 1);
    QCOMPARE(model->snapshots().constFirst().reason, u"Before Work"_s);
    QCOMPARE(model->snapshots().constFirst().signature, ModelWorld::bundleIDs({u"a"_s, u"b"_s}));
    QCOMPARE(model->settings().lastAppliedSignature, ModelWorld::bundleIDs({u"c"_s, u"a"_s}));
    QVERIFY(model->settings().lastApplied);
    QVERIFY(model->proposalMatchesDock());
}

void AppModelTest::applyToAMatchingDockOnlyConfirmsIt() {
    world->setDock({u"c"_s, u"a"_s});
    const int saves = world->preferences.saves;
    model->applyActive(AppModel::Notify::always);
    QVERIFY(!model->isWorking());
    QCOMPARE(model->toast(), (Toast{u"Your Dock already matches Work."_s, false}));
    QCOMPARE(world->preferences.saves, saves);
    QVERIFY(model->snapshots().isEmpty());
    QCOMPARE(model->settings().lastAppliedSignature, ModelWorld::bundleIDs({u"c"_s, u"a"_s}));
    QCOMPARE(model->settings().lastApplied, world->clock.now());
    QVERIFY(!model->settings().autoPaused);
}

void AppModelTest::anEmptyProposalNeverEmptiesTheDock() {
    pinActive(*model, {});
    model->applyActive(AppModel::Notify::always);
    QVERIFY(!model->isWorking());
    QCOMPARE(model->toast(), (Toast{u"Work has no apps yet. Add some in Profiles."_s, true}));
    QCOMPARE(world->dock(), QStringList({u"a"_s, u"b"_s}));
    QVERIFY(!model->settings().lastAppliedSignature);
}

void AppModelTest::applyWhileAChangeRunsDoesNothing() {
    Gate gate;
    world->holdRestarts(gate);
    QVERIFY(refreshAndWait(*model));
    model->applyActive(AppModel::Notify::always);
    std::optional<Outcome> outcome;
    model->applyActive(AppModel::Notify::always, [&outcome](const Outcome& result) { outcome = result; });
    QVERIFY(outcome && outcome->refused);
    QVERIFY(!model->toast());
    gate.open();
    QVERIFY(waitForChange(*model));
    QCOMPARE(model->snapshots().size(), 1);
}

void AppModelTest::restoreWhileAChangeRunsDoesNothing() {
    Gate gate;
    world->holdRestarts(gate);
    model->captureOriginal();
    QVERIFY(refreshAndWait(*model));
    model->applyActive(AppModel::Notify::always);
    std::optional<Outcome> outcome;
    model->restore(model->snapshots().constFirst(), [&outcome](const Outcome& result) { outcome = result; });
    QVERIFY(outcome && outcome->refused);
    gate.open();
    QVERIFY(waitForChange(*model));
    QCOMPARE(world->dock(), QStringList({u"c"_s, u"a"_s}));
}

void AppModelTest::aSilentApplySaysNothing() {
    QVERIFY(refreshAndWait(*model));
    model->applyActive(AppModel::Notify::failuresOnly);
    QVERIFY(waitForChange(*model));
    QCOMPARE(world->dock(), QStringList({u"c"_s, u"a"_s}));
    QVERIFY(!model->toast());
    QVERIFY(model->settings().lastAppliedSignature);
    model->applyActive(AppModel::Notify::failuresOnly);
    QVERIFY(!model->toast());
    pinActive(*model, {});
    model->applyActive(AppModel::Notify::failuresOnly);
    QVERIFY(!model->toast());
}

void AppModelTest::aFailedSilentApplyIsStillTold() {
    QVERIFY(refreshAndWait(*model));
    world->preferences.refusesToSave = true;
    model->applyActive(AppModel::Notify::failuresOnly);
    QVERIFY(waitForChange(*model));
    QCOMPARE(model->toast(), (Toast{u"macOS refused to save the Dock settings."_s, true}));
}

void AppModelTest::aDockThatDoesNotHoldIsToldAndChangesNoSettings() {
    QVERIFY(refreshAndWait(*model));
    const PropertyList before = world->preferences.stored.value(u"persistent-apps"_s);
    world->processes.answer = [this, before](const Fakes::Processes::Run& run) -> std::optional<int> {
        if (run.executable.endsWith(u"killall"))
            world->preferences.stored.insert(u"persistent-apps"_s, before);
        return 0;
    };
    const AppSettings settings = model->settings();
    std::optional<Outcome> outcome;
    model->applyActive(AppModel::Notify::always, [&outcome](const Outcome& result) { outcome = result; });
    QVERIFY(waitForChange(*model));
    QCOMPARE(model->toast(), (Toast{u"The Dock settings did not stick. Nothing was changed."_s, true}));
    QVERIFY(outcome && outcome->isError && !outcome->changed);
    QCOMPARE(model->settings(), settings);
    QCOMPARE(model->snapshots().size(), 1);
    QCOMPARE(layoutSignature(model->current()), ModelWorld::bundleIDs({u"a"_s, u"b"_s}));
}

void AppModelTest::nothingIsWrittenWhenTheDockCannotBeSaved() {
    QVERIFY(refreshAndWait(*model));
    QVERIFY(QDir(world->paths().snapshots()).removeRecursively());
    QFile blocker(world->paths().support() + u"/Snapshots"_s);
    QVERIFY(blocker.open(QIODevice::WriteOnly));
    const int saves = world->preferences.saves;
    model->applyActive(AppModel::Notify::always);
    QVERIFY(waitForChange(*model));
    QVERIFY(model->toast() && model->toast()->isError);
    QVERIFY(!model->toast()->text.isEmpty());
    QCOMPARE(world->preferences.saves, saves);
    QCOMPARE(world->dock(), QStringList({u"a"_s, u"b"_s}));
}

void AppModelTest::readingTheDockDuringOurOwnChangeIsNoManualChange() {
    QVERIFY(refreshAndWait(*model));
    model->applyActive(AppModel::Notify::always);
    QVERIFY(waitForChange(*model));
    pinActive(*model, {u"e"_s});
    Gate gate;
    world->holdRestarts(gate);
    model->applyActive(AppModel::Notify::always);
    QTRY_COMPARE(world->dock(), QStringList{u"e"_s});
    model->refresh();
    QVERIFY(!model->settings().autoPaused);
    gate.open();
    QVERIFY(waitForChange(*model));
    QVERIFY(!model->settings().autoPaused);
}

void AppModelTest::restorePutsTheDockBackAndPauses() {
    QVERIFY(refreshAndWait(*model));
    model->applyActive(AppModel::Notify::always);
    QVERIFY(waitForChange(*model));
    model->restorePrevious();
    QVERIFY(waitForChange(*model));
    QCOMPARE(world->dock(), QStringList({u"a"_s, u"b"_s}));
    QCOMPARE(model->toast(), (Toast{u"Dock restored to “Before Work”."_s, false}));
    QVERIFY(model->settings().autoPaused);
    QVERIFY(!model->settings().lastAppliedSignature);
    QCOMPARE(model->snapshots().constFirst().reason, u"Before restoring"_s);
}

void AppModelTest::restoreWithUpdatesOffDoesNotPause() {
    model->setAutoUpdate(AutoUpdate::off);
    QVERIFY(refreshAndWait(*model));
    model->applyActive(AppModel::Notify::always);
    QVERIFY(waitForChange(*model));
    model->restorePrevious();
    QVERIFY(waitForChange(*model));
    QVERIFY(!model->settings().autoPaused);
}

void AppModelTest::restorePreviousWithoutOneSaysSo() {
    model->restorePrevious();
    QCOMPARE(model->toast(), (Toast{u"There is no earlier Dock to go back to yet."_s, false}));
    QVERIFY(!model->isWorking());
}

void AppModelTest::activatingAppliesOnlyWhenAsked() {
    QVERIFY(refreshAndWait(*model));
    const Profile other = model->addProfile();
    QVERIFY(model->activeProfile().id != other.id);
    model->activate(other.id, AppModel::Apply::no);
    QCOMPARE(model->activeProfile().id, other.id);
    QVERIFY(!model->isWorking());
    model->activate(model->profiles().constFirst().id, AppModel::Apply::yes);
    QVERIFY(waitForChange(*model));
    QTRY_COMPARE(world->dock(), QStringList({u"c"_s, u"a"_s}));
}

void AppModelTest::startingSavesTheOriginal() {
    model->start();
    QCOMPARE(model->snapshots().size(), 1);
    QVERIFY(model->snapshots().constFirst().isOriginal);
}

void AppModelTest::startingTakesTheTrackingFromTheSettings_data() {
    QTest::addColumn<bool>("isOn");
    QTest::newRow("on") << true;
    QTest::newRow("off") << false;
}

void AppModelTest::startingTakesTheTrackingFromTheSettings() {
    QFETCH(const bool, isOn);
    model->setTracking(isOn);
    Fakes::Workspace workspace;
    workspace.front = Fakes::Workspace::regular(ModelWorld::bundleID(u"d"_s), u"d"_s);
    model.emplace(world->services(), world->paths(), &workspace, nullptr);
    model->start();
    world->clock.advance(10s);
    model->tracker().sample();
    QCOMPARE(model->usage().trackingSince().has_value(), isOn);
    model.reset();
}

void AppModelTest::historyAndLoginItemAreKnownFromTheBeginning() {
    QVERIFY(!model->launchAtLogin());
    model->captureOriginal();
    login.enabled = true;
    model.emplace(world->services(), world->paths(), nullptr, &login);
    QCOMPARE(model->snapshots().size(), 1);
    QVERIFY(model->launchAtLogin());
}

void AppModelTest::restorePreviousGoesByTheDockAsItIsNow() {
    model->captureOriginal();
    QVERIFY(refreshAndWait(*model));
    world->setDock({u"e"_s});
    model->restorePrevious();
    QVERIFY(model->isWorking());
    QVERIFY(waitForChange(*model));
    QCOMPARE(world->dock(), QStringList({u"a"_s, u"b"_s}));
}

void AppModelTest::applyGoesByTheDockAsItIsNow() {
    QVERIFY(refreshAndWait(*model));
    // Somebody puts c there, and what the Dock has of it stays as it is.
    world->setDock({u"b"_s, u"c"_s});
    const QList<DockTile> byHand = world->dockStore.currentTiles();
    PropertyList::Array tiles;
    for (const DockTile& tile : byHand) {
        PropertyList::Dictionary raw = tile.raw;
        raw.insert(u"mark"_s, {true});
        tiles.append(PropertyList{raw});
    }
    world->preferences.stored.insert(u"persistent-apps"_s, PropertyList{tiles});
    model->applyActive(AppModel::Notify::failuresOnly);
    QVERIFY(waitForChange(*model));
    QCOMPARE(world->dock(), QStringList({u"c"_s, u"a"_s}));
    QVERIFY(world->dockStore.currentTiles().constFirst().raw.contains(u"mark"_s));
}

void AppModelTest::aRestoreIsSaved() {
    QVERIFY(refreshAndWait(*model));
    model->applyActive(AppModel::Notify::always);
    QVERIFY(waitForChange(*model));
    QVERIFY(world->profileStore().settings.lastAppliedSignature);
    model->restorePrevious();
    QVERIFY(waitForChange(*model));
    QVERIFY(world->profileStore().settings.autoPaused);
    QVERIFY(!world->profileStore().settings.lastAppliedSignature);
}

void AppModelTest::theOriginalIsSavedOnce() {
    model->captureOriginal();
    QCOMPARE(model->snapshots().size(), 1);
    QVERIFY(model->snapshots().constFirst().isOriginal);
    QCOMPARE(model->snapshots().constFirst().reason, u"Before Kelvane"_s);
    world->setDock({u"e"_s});
    model->captureOriginal();
    QCOMPARE(model->snapshots().size(), 1);
}

void AppModelTest::aFailedOriginalIsTriedAgainAtTheNextStart() {
    QVERIFY(QDir(world->paths().snapshots()).removeRecursively());
    QFile blocker(world->paths().support() + u"/Snapshots"_s);
    QVERIFY(blocker.open(QIODevice::WriteOnly));
    model->captureOriginal();
    QVERIFY(!model->toast());
    QVERIFY(blocker.remove());
    QCOMPARE(world->paths().snapshots(), world->paths().support() + u"/Snapshots"_s);
    model->captureOriginal();
    QCOMPARE(model->snapshots().size(), 1);
}

void AppModelTest::newProfilesAreNumbered_data() {
    QTest::addColumn<QStringList>("present");
    QTest::addColumn<QString>("expected");
    QTest::newRow("the first is not numbered") << QStringList{} << u"New Profile"_s;
    QTest::newRow("the second is number 2") << QStringList{u"New Profile"_s} << u"New Profile 2"_s;
    QTest::newRow("bare and 2 are there") << QStringList{u"New Profile"_s, u"New Profile 2"_s} << u"New Profile 3"_s;
    QTest::newRow("only the numbered one is there") << QStringList{u"New Profile 2"_s} << u"New Profile"_s;
    QTest::newRow("another case is another name") << QStringList{u"new profile"_s} << u"New Profile"_s;
}

void AppModelTest::newProfilesAreNumbered() {
    QFETCH(QStringList, present);
    QFETCH(QString, expected);
    for (const QString& name : present) {
        Profile profile = model->addProfile();
        profile.name = name;
        model->update(profile);
    }
    const Profile added = model->addProfile();
    QCOMPARE(added.name, expected);
    QCOMPARE(added.symbol, u"sparkles"_s);
    QCOMPARE(added.adaptiveSlots, 8);
    QCOMPARE(added.window, UsageWindow::week);
    QVERIFY(added.separatePinned);
    QVERIFY(added.pinned.isEmpty());
    QVERIFY(added.excluded.isEmpty());
    QCOMPARE(model->profiles().constLast(), added);
    QCOMPARE(world->profileStore().profiles, model->profiles());
}

void AppModelTest::duplicatesKeepOneName() {
    const Profile first = model->profiles().constFirst();
    const Profile copy = model->duplicate(first);
    const Profile again = model->duplicate(first);
    QCOMPARE(copy.name, u"Work Copy"_s);
    QCOMPARE(again.name, u"Work Copy"_s);
    QVERIFY(copy.id != first.id && copy.id != again.id);
    QCOMPARE(copy.pinned, first.pinned);
    QCOMPARE(world->profileStore().profiles, model->profiles());
    QCOMPARE(world->profileStore().profiles.constLast(), again);
}

void AppModelTest::theOnlyProfileStays() {
    while (model->profiles().size() > 1)
        model->removeProfile(model->profiles().constLast().id);
    const Profile last = model->profiles().constFirst();
    model->removeProfile(last.id);
    QCOMPARE(model->profiles(), QList<Profile>{last});
}

void AppModelTest::removingTheActiveProfileActivatesTheFirstRemaining() {
    const QList<Profile> before = model->profiles();
    model->removeProfile(before.constFirst().id);
    QCOMPARE(model->settings().activeProfileID, before[1].id);
    QCOMPARE(world->profileStore().settings.activeProfileID, before[1].id);
    model->removeProfile(before[3].id);
    QCOMPARE(model->settings().activeProfileID, before[1].id);
    QCOMPARE(world->profileStore().profiles.size(), before.size() - 2);
}

void AppModelTest::removingTheActiveProfileProposesTheNext() {
    QVERIFY(refreshAndWait(*model));
    Profile next = model->profiles()[1];
    next.pinned = ModelWorld::bundleIDs({u"e"_s});
    next.excluded.clear();
    next.adaptiveSlots = 0;
    model->update(next);
    model->removeProfile(model->activeProfile().id);
    QCOMPARE(layoutSignature(model->proposal()), ModelWorld::bundleIDs({u"e"_s}));
}

void AppModelTest::updateIgnoresUnknownAndEqualProfiles() {
    QSignalSpy changed(&*model, &AppModel::profilesChanged);
    model->update(model->activeProfile());
    Profile stranger = model->activeProfile();
    stranger.id = QUuid::createUuid();
    model->update(stranger);
    QCOMPARE(changed.count(), 0);
}

void AppModelTest::updateOfAnotherProfileLeavesTheProposal() {
    QVERIFY(refreshAndWait(*model));
    QSignalSpy proposed(&*model, &AppModel::proposalChanged);
    Profile other = model->profiles()[1];
    other.pinned = ModelWorld::bundleIDs({u"e"_s});
    model->update(other);
    QCOMPARE(proposed.count(), 0);
    QCOMPARE(world->profileStore().profiles[1], other);
    pinActive(*model, {u"d"_s});
    QCOMPARE(layoutSignature(model->proposal()), ModelWorld::bundleIDs({u"d"_s}));
}

void AppModelTest::aRefusedLoginItemShowsTheRealState() {
    model->setLaunchAtLogin(true);
    QVERIFY(model->launchAtLogin());
    QVERIFY(!model->toast());
    login.refusal = u"Operation not permitted"_s;
    model->setLaunchAtLogin(false);
    QCOMPARE(model->toast(), (Toast{u"macOS didn't allow that: Operation not permitted"_s, true}));
    QVERIFY(model->launchAtLogin());
}

void AppModelTest::aLoginItemSwitchedElsewhereIsSeen() {
    QSignalSpy changed(&*model, &AppModel::launchAtLoginChanged);
    QVERIFY(refreshAndWait(*model));
    QCOMPARE(changed.count(), 0);
    login.enabled = true;
    QVERIFY(refreshAndWait(*model));
    QVERIFY(model->launchAtLogin());
    QCOMPARE(changed.count(), 1);
}

void AppModelTest::aToastIsDismissedOnlyWhileItIsTheSame() {
    model->restorePrevious();
    const Toast shown = *model->toast();
    model->dismiss({u"Something else."_s, false});
    QCOMPARE(model->toast(), shown);
    model->dismiss(shown);
    QVERIFY(!model->toast());
}

void AppModelTest::erasingUsageKeepsProfilesAndSnapshots() {
    model->captureOriginal();
    const QList<Profile> profiles = model->profiles();
    model->eraseUsage();
    QCOMPARE(model->toast(), (Toast{u"Usage history erased."_s, false}));
    QVERIFY(!model->usage().trackingSince());
    QCOMPARE(model->profiles(), profiles);
    QCOMPARE(model->snapshots().size(), 1);
}

void AppModelTest::finishingTheFirstRunWithAnEmptyProposalStillEndsIt() {
    pinActive(*model, {});
    model->finishOnboarding(AppModel::Apply::yes);
    QVERIFY(model->settings().onboarded);
    QVERIFY(world->profileStore().settings.onboarded);
    QCOMPARE(model->toast()->text, u"Work has no apps yet. Add some in Profiles."_s);
}

QTEST_GUILESS_MAIN(AppModelTest)
#include "AppModelTest.moc"
