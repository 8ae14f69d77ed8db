#include "Kelvane/ViewModels/AppFacade.h"

#include "Support/ModelWorld.h"

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
        facade.emplace(*model);
    }
    void cleanup() {
        facade.reset();
        model.reset();
        world.reset();
    }

    void panesGoByTheirRawValues_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("pane");
        QTest::addColumn<QString>("file");
        const auto row = [](const char* name, Pane pane, const char* file) {
            QTest::newRow(name) << QString::fromLatin1(name) << static_cast<int>(pane) << QString::fromLatin1(file);
        };
        row("dock", Pane::dock, "DockPane.qml");
        row("usage", Pane::usage, "UsagePane.qml");
        row("profiles", Pane::profiles, "ProfilesPane.qml");
        row("history", Pane::history, "HistoryPane.qml");
        row("settings", Pane::settings, "SettingsPane.qml");
    }
    void panesGoByTheirRawValues() {
        QFETCH(QString, name);
        QFETCH(int, pane);
        QFETCH(QString, file);
        model->finishOnboarding(AppModel::Apply::no);
        facade->setPane(name);
        QCOMPARE(static_cast<int>(model->pane()), pane);
        QCOMPARE(facade->pane(), name);
        QCOMPARE(facade->contentSource().fileName(), file);
    }

    void aPaneThatIsNoneChangesNothing() {
        facade->setPane(u"usage"_s);
        facade->setPane(u"Dock"_s);
        QCOMPARE(facade->pane(), u"usage"_s);
    }

    void theFirstRunTakesThePlaceOfThePanesUntilItIsDone() {
        QVERIFY(facade->isFirstRun());
        QCOMPARE(facade->contentSource().fileName(), u"OnboardingView.qml"_s);
        QSignalSpy changed(&*facade, &AppFacade::contentChanged);
        model->finishOnboarding(AppModel::Apply::no);
        QVERIFY(changed.count() > 0);
        QVERIFY(!facade->isFirstRun());
        QCOMPARE(facade->contentSource().fileName(), u"DockPane.qml"_s);
    }

    void aPictureShowsEitherWhateverTheSettingsSay() {
        facade->setContent(AppFacade::Content::panes);
        QVERIFY(!facade->isFirstRun());
        model->finishOnboarding(AppModel::Apply::no);
        facade->setContent(AppFacade::Content::firstRun);
        QVERIFY(facade->isFirstRun());
    }

    void aToastIsShownAndGoesByItself() {
        QSignalSpy changed(&*facade, &AppFacade::toastChanged);
        model->restorePrevious();
        QCOMPARE(facade->toastText(), u"There is no earlier Dock to go back to yet."_s);
        QVERIFY(!facade->toastIsError());
        const QElapsedTimer since = started();
        QVERIFY(QTest::qWaitFor([&] { return facade->toastText().isEmpty(); }, 2 * AppFacade::toastMilliseconds));
        QVERIFY(since.elapsed() >= AppFacade::toastMilliseconds - 300);
        QVERIFY(changed.count() >= 2);
    }

    void aLaterToastGetsItsWholeTime() {
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

    void theFooterFollowsTheActiveProfile() {
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
    std::optional<AppFacade> facade;
};

QTEST_GUILESS_MAIN(AppFacadeTest)
#include "AppFacadeTest.moc"
