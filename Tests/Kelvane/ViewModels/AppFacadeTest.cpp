#include "Kelvane/ViewModels/AppFacade.h"

#include "Support/FakeDesktop.h"
#include "Support/ModelWorld.h"

#include <QAbstractItemModelTester>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QTest>

using namespace DockCore;
using namespace Kelvane;
using namespace Fakes;
using namespace Qt::StringLiterals;

class AppFacadeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        world.emplace(QStringList{u"a"_s});
        model.emplace(world->services(), world->paths(), nullptr, nullptr);
        facade.emplace(*model, desktop);
    }
    void cleanup() {
        facade.reset();
        model.reset();
        world.reset();
    }

    void eachPaneIsChosenByItsName_data() {
        QTest::addColumn<int>("pane");
        for (int pane = 0; pane < allPanes().size(); ++pane)
            QTest::newRow(qPrintable(allPanes()[pane].name)) << pane;
    }
    void eachPaneIsChosenByItsName() {
        QFETCH(int, pane);
        const PaneInfo& chosen = info(static_cast<Pane>(pane));
        model->finishOnboarding(AppModel::Apply::no);
        facade->setPane(chosen.name);
        QCOMPARE(static_cast<int>(model->pane()), pane);
        QCOMPARE(facade->pane(), chosen.name);
        QVERIFY(facade->contentSource().path().endsWith(u"/Kelvane/"_s + chosen.file));
        QCOMPARE(facade->paneHasBar(), chosen.hasBar);
    }

    void panesAreListedInOrder() {
        const QAbstractItemModelTester tester(facade->panes(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        QStringList names;
        for (const PaneInfo& pane : facade->panes()->rows())
            names += pane.name;
        QCOMPARE(names.join(u' '), u"dock usage profiles history settings"_s);
        QCOMPARE(info(Pane::settings).name, u"settings"_s);
    }

    void facadeIsTheParentOfItsEngine() {
        const QQmlEngine engine(&*facade);
        QCOMPARE(&AppFacade::of(engine), &*facade);
        AppFacade other(*model, desktop);
        const QQmlEngine second(&other);
        QCOMPARE(&AppFacade::of(second), &other);
    }

    void usageWindowsHaveTheirTitles() {
        QCOMPARE(facade->usageWindows(), QStringList({u"Last 7 days"_s, u"Last 30 days"_s}));
    }

    void resumingEndsThePauseAndAppliesAgain() {
        pinActive(*model, {u"b"_s, u"a"_s});
        model->applyActive(AppModel::Notify::failuresOnly);
        QVERIFY(waitForChange(*model));
        world->setDock({u"e"_s});
        QSignalSpy spy(&*facade, &AppFacade::settingsChanged);
        QVERIFY(refreshAndWait(*model));
        QVERIFY(facade->isAutoPaused());
        QVERIFY(spy.count() > 0);
        facade->resume();
        QTRY_VERIFY(!facade->isAutoPaused() && !model->isWorking());
        QCOMPARE(world->dock(), QStringList({u"b"_s, u"a"_s}));
    }

    void unknownPaneChangesNothing() {
        facade->setPane(u"usage"_s);
        facade->setPane(u"Dock"_s);
        QCOMPARE(facade->pane(), u"usage"_s);
    }

    void firstRunTakesThePlaceOfThePanesUntilItIsDone() {
        QVERIFY(facade->isFirstRun());
        QCOMPARE(facade->contentSource().fileName(), u"OnboardingView.qml"_s);
        QSignalSpy changed(&*facade, &AppFacade::contentChanged);
        model->finishOnboarding(AppModel::Apply::no);
        QVERIFY(changed.count() > 0);
        QVERIFY(!facade->isFirstRun());
        QCOMPARE(facade->contentSource().fileName(), u"DockPane.qml"_s);
    }

    void contentForPicturesOverridesTheSettings() {
        facade->setContent(AppFacade::Content::panes);
        QVERIFY(!facade->isFirstRun());
        model->finishOnboarding(AppModel::Apply::no);
        facade->setContent(AppFacade::Content::firstRun);
        QVERIFY(facade->isFirstRun());
    }

    void toastDisappearsByItself() {
        QSignalSpy changed(&*facade, &AppFacade::toastChanged);
        model->restorePrevious();
        QCOMPARE(facade->toastText(), u"There is no earlier Dock to go back to yet."_s);
        QVERIFY(!facade->toastIsError());
        const QElapsedTimer since = started();
        QVERIFY(QTest::qWaitFor([&] { return facade->toastText().isEmpty(); }, 2 * AppFacade::toastMilliseconds));
        QVERIFY(since.elapsed() >= AppFacade::toastMilliseconds - 300);
        QVERIFY(changed.count() >= 2);
    }

    void laterToastIsShownForItsWholeTime() {
        pinActive(*model, {});
        model->restorePrevious();
        QTest::qWait(1000);
        const QElapsedTimer since = started();
        model->applyActive(AppModel::Notify::always);
        QCOMPARE(facade->toastText(), u"Work has no apps yet. Add some in Profiles."_s);
        QVERIFY(facade->toastIsError());
        QVERIFY(QTest::qWaitFor([&] { return facade->toastText().isEmpty(); }, 2 * AppFacade::toastMilliseconds));
        QVERIFY(since.elapsed() >= AppFacade::toastMilliseconds - 300);
    }

    void profileNameFollowsTheActiveProfile() {
        QSignalSpy changed(&*facade, &AppFacade::activeProfileChanged);
        pinActive(*model, {u"a"_s});
        QCOMPARE(facade->profileName(), u"Work"_s);
        QVERIFY(changed.count() > 0);
    }

private:
    static QElapsedTimer started() {
        QElapsedTimer timer;
        timer.start();
        return timer;
    }

    std::optional<ModelWorld> world;
    std::optional<AppModel> model;
    Fakes::Desktop desktop;
    std::optional<AppFacade> facade;
};

QTEST_GUILESS_MAIN(AppFacadeTest)
#include "AppFacadeTest.moc"
