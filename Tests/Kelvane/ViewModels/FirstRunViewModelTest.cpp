#include "Kelvane/ViewModels/FirstRunViewModel.h"

#include "Kelvane/ViewModels/AppNames.h"
#include "Support/ModelWorld.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace DockCore;
using namespace Kelvane;
using namespace Fakes;
using namespace Qt::StringLiterals;

class FirstRunViewModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        world.emplace();
        model.emplace(world->services(), world->paths(), nullptr, nullptr);
        model->captureOriginal();
        flow.emplace(*model);
        tester = std::make_unique<QAbstractItemModelTester>(flow->choices(),
                                                            QAbstractItemModelTester::FailureReportingMode::QtTest);
    }
    void cleanup() {
        tester.reset();
        flow.reset();
        model.reset();
        world.reset();
    }

    void theStepsAreWalkedWithinTheirEnds() {
        QCOMPARE(flow->step(), 0);
        flow->back();
        QCOMPARE(model->onboardingStep(), 0);
        flow->advance();
        flow->advance();
        QCOMPARE(model->onboardingStep(), 2);
        flow->advance();
        QCOMPARE(model->onboardingStep(), 2);
        flow->back();
        QCOMPARE(flow->step(), 1);
    }

    void theActiveProfileIsChosenAtFirst() {
        QCOMPARE(flow->choices()->rowCount(), static_cast<int>(model->profiles().size()));
        QVERIFY(flow->choices()->rows()[0].isChosen);
    }

    void choosingActivatesAndLeavesTheDock() {
        QSignalSpy spy(&*model, &AppModel::proposalChanged);
        flow->choose(uuidString(model->profiles()[2].id));
        QCOMPARE(world->profileStore().settings.activeProfileID, std::optional(model->profiles()[2].id));
        QVERIFY(flow->choices()->rows()[2].isChosen);
        QVERIFY(!flow->choices()->rows()[0].isChosen);
        QVERIFY(spy.count() > 0);
        QCOMPARE(world->dock(), QStringList({u"a"_s, u"b"_s}));
        QVERIFY(!model->settings().onboarded);
    }

    void line_data() {
        QTest::addColumn<int>("slots_");
        QTest::addColumn<UsageWindow>("window");
        QTest::addColumn<QString>("line");
        QTest::newRow("several apps over a week") << 8 << UsageWindow::week << u"With 8 apps by usage · Last 7 days"_s;
        QTest::newRow("one app over a month") << 1 << UsageWindow::month << u"With 1 app by usage · Last 30 days"_s;
        QTest::newRow("none at all") << 0 << UsageWindow::week << u"With no apps by usage · Last 7 days"_s;
        QTest::newRow("fewer than none") << -3 << UsageWindow::week << u"With no apps by usage · Last 7 days"_s;
    }
    void line() {
        QFETCH(int, slots_);
        QFETCH(UsageWindow, window);
        Profile profile = model->activeProfile();
        profile.adaptiveSlots = slots_;
        profile.window = window;
        model->update(profile);
        QTEST(flow->choices()->rows()[0].line, "line");
    }

    void aChoiceShowsWhatItsProfilePlans() {
        pinActive(*model, {u"c"_s, u"a"_s});
        QCOMPARE(flow->choices()->rows()[0].icons, AppNames(*model).icons(ModelWorld::bundleIDs({u"c"_s, u"a"_s})));
    }

    void theSavedDockIsTheOriginal() {
        world->setDock({u"e"_s});
        QVERIFY(refreshAndWait(*model));
        QCOMPARE(flow->savedNames(), u"a, b"_s);
    }

    void aLongSavedDockStandsInTwoRows_data() {
        QTest::addColumn<int>("apps");
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("second");
        QTest::newRow("none at all") << 0 << 0 << 0;
        QTest::newRow("fourteen fit in one") << 14 << 14 << 0;
        QTest::newRow("fifteen take two") << 15 << 8 << 7;
    }
    void aLongSavedDockStandsInTwoRows() {
        QFETCH(int, apps);
        QStringList words;
        for (int i = 0; i < apps; ++i)
            words += u"app%1"_s.arg(i);
        ModelWorld other(words);
        AppModel fresh(other.services(), other.paths(), nullptr, nullptr);
        fresh.captureOriginal();
        const FirstRunViewModel run(fresh);
        QTEST(static_cast<int>(run.savedFirstIcons().size()), "first");
        QTEST(static_cast<int>(run.savedSecondIcons().size()), "second");
    }

    void applyingEndsTheFlowAndWritesTheDock() {
        pinActive(*model, {u"c"_s, u"b"_s});
        flow->applyToDock();
        QVERIFY(world->profileStore().settings.onboarded);
        QVERIFY(waitForChange(*model));
        QCOMPARE(world->dock(), QStringList({u"c"_s, u"b"_s}));
        QCOMPARE(model->toast()->text, u"Dock updated for Work."_s);
    }

    void applyingToAMatchingDockEndsTheFlowAndSaysSo() {
        pinActive(*model, {u"a"_s, u"b"_s});
        flow->applyToDock();
        QVERIFY(model->settings().onboarded);
        QCOMPARE(model->toast()->text, u"Your Dock already matches Work."_s);
    }

    void applyingAnEmptySuggestionEndsTheFlowAndSaysSo() {
        pinActive(*model, {});
        flow->applyToDock();
        QVERIFY(model->settings().onboarded);
        QCOMPARE(model->toast()->text, u"Work has no apps yet. Add some in Profiles."_s);
        QVERIFY(model->toast()->isError);
        QCOMPARE(world->dock(), QStringList({u"a"_s, u"b"_s}));
    }

    void notNowEndsTheFlowAndLeavesTheDock() {
        pinActive(*model, {u"c"_s});
        flow->notNow();
        QVERIFY(world->profileStore().settings.onboarded);
        QVERIFY(!model->isWorking());
        QCOMPARE(world->dock(), QStringList({u"a"_s, u"b"_s}));
        QCOMPARE(flow->choices()->rowCount(), 0);
    }

    void anUnfinishedFlowIsNotRememberedAsDone() {
        flow->advance();
        flow->choose(uuidString(model->profiles()[1].id));
        QVERIFY(!world->profileStore().settings.onboarded);
    }

    void untilTheFlowIsDoneNothingIsApplied() {
        pinActive(*model, {u"c"_s});
        model->autoCheck();
        QVERIFY(refreshAndWait(*model));
        QVERIFY(!model->isWorking());
        QCOMPARE(world->dock(), QStringList({u"a"_s, u"b"_s}));
    }

private:
    std::optional<ModelWorld> world;
    std::optional<AppModel> model;
    std::optional<FirstRunViewModel> flow;
    std::unique_ptr<QAbstractItemModelTester> tester;
};

QTEST_GUILESS_MAIN(FirstRunViewModelTest)
#include "FirstRunViewModelTest.moc"
