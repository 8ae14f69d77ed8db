#include "Kelvane/ViewModels/DockViewModel.h"

#include "Support/ModelWorld.h"
#include "Support/TimeZone.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace DockCore;
using namespace Kelvane;
using namespace Fakes;
using namespace Qt::StringLiterals;

class DockViewModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        qputenv("TZ", "UTC");
        tzset();
    }
    void init() {
        world.emplace(QStringList{u"a"_s, u"b"_s, u"c"_s});
        model.emplace(world->services(), world->paths(), nullptr, nullptr);
        pinActive(*model, {u"b"_s, u"a"_s, u"d"_s});
        pane.emplace(*model);
        QVERIFY(refreshAndWait(*model));
    }
    void cleanup() {
        pane.reset();
        model.reset();
        world.reset();
    }

    void theFiguresAreThoseOfTheDifference() {
        QCOMPARE(pane->added(), 1);
        QCOMPARE(pane->leaving(), 1);
        QCOMPARE(pane->moved(), 2);
        QCOMPARE(pane->leavingLine(), u"Leaving: c"_s);
        QCOMPARE(pane->nowCaption(), u"3 apps in your Dock"_s);
        QCOMPARE(pane->suggestedTitle(), u"Suggested for Work"_s);
        QCOMPARE(pane->editText(), u"Edit Work"_s);
        QVERIFY(!pane->matches());
    }

    void anAppThatIsNotInstalledIsNotCountedAsAlwaysThere() {
        Profile profile = model->activeProfile();
        profile.pinned = ModelWorld::bundleIDs({u"a"_s, u"gone"_s});
        profile.adaptiveSlots = 8;
        profile.window = UsageWindow::week;
        model->update(profile);
        QCOMPARE(pane->suggestion(), u"1 always-there app, then the 8 apps you used most in the last 7 days"_s);
    }

    void anAppNamedTwiceCountsOnce() {
        Profile profile = model->activeProfile();
        profile.pinned = ModelWorld::bundleIDs({u"a"_s, u"a"_s, u"b"_s});
        profile.adaptiveSlots = 8;
        model->update(profile);
        QVERIFY(pane->suggestion().startsWith(u"2 always-there apps, "_s));
    }

    void theNoteCountsTheDaysOfTheProfilesWindow() {
        QVERIFY(pane->dataNote().startsWith(u"No tracked history yet"_s));
    }

    void choosingAProfileChangesTheSuggestionAndNotTheDock() {
        const QAbstractItemModelTester tester(pane->suggested(),
                                              QAbstractItemModelTester::FailureReportingMode::QtTest);
        Profile other = model->addProfile();
        other.name = u"Other"_s;
        other.pinned = ModelWorld::bundleIDs({u"e"_s});
        other.adaptiveSlots = 0;
        model->update(other);
        pane->chooseRow(pane->profiles()->rowCount() - 1);
        QCOMPARE(model->activeProfile().id, other.id);
        QCOMPARE(pane->activeRow(), pane->profiles()->rowCount() - 1);
        QCOMPARE(pane->suggestedTitle(), u"Suggested for Other"_s);
        QCOMPARE(pane->suggested()->count(), 1);
        QCOMPARE(world->dock(), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
        QVERIFY(!model->isWorking());
    }

    void aRowThatIsNotThereChoosesNothing() {
        const QUuid before = model->activeProfile().id;
        pane->chooseRow(-1);
        pane->chooseRow(pane->profiles()->rowCount());
        QCOMPARE(model->activeProfile().id, before);
    }

    void pressingTwiceWhileAChangeRunsChangesTheDockOnce() {
        Gate gate;
        world->holdRestarts(gate);
        pane->apply();
        QTRY_VERIFY(model->isWorking());
        pane->apply();
        gate.open();
        QVERIFY(waitForChange(*model));
        const auto restarts = std::count_if(world->processes.runs.begin(), world->processes.runs.end(),
                                            [](const auto& run) { return run.executable.endsWith(u"killall"_s); });
        QCOMPARE(restarts, 1);
        QVERIFY(pane->matches());
        QCOMPARE(pane->added() + pane->leaving() + pane->moved(), 0);
    }

    void withoutASuggestionNothingIsSaidToLeave() {
        pinActive(*model, {});
        QCOMPARE(pane->suggested()->count(), 0);
        QCOMPARE(pane->leaving(), 0);
        QCOMPARE(pane->emptyText(), u"Work has no apps yet. Add some in Profiles."_s);
    }

    void tilesAreDenseAboveTwentySevenApps_data() {
        QTest::addColumn<int>("apps");
        QTest::addColumn<bool>("dense");
        QTest::newRow("twenty-seven fit") << 27 << false;
        QTest::newRow("twenty-eight are dense") << 28 << true;
    }
    void tilesAreDenseAboveTwentySevenApps() {
        QFETCH(int, apps);
        QStringList words;
        for (int i = 0; i < apps; ++i)
            words.append(u"app"_s + QString::number(i));
        world->setDock(words);
        QVERIFY(refreshAndWait(*model));
        QTEST(pane->isDense(), "dense");
    }

    void editingShowsTheProfilesPane() {
        pane->editProfile();
        QCOMPARE(model->pane(), Pane::profiles);
    }

private:
    std::optional<ModelWorld> world;
    std::optional<AppModel> model;
    std::optional<DockViewModel> pane;
};

QTEST_GUILESS_MAIN(DockViewModelTest)
#include "DockViewModelTest.moc"
