#include "Kelvane/ViewModels/SettingsViewModel.h"

#include "DockCore/Storage/Paths.h"
#include "Kelvane/UsageTracker.h"
#include "Support/FakeDesktop.h"
#include "Support/ModelWorld.h"

#include <QFile>
#include <QTest>

using namespace DockCore;
using namespace Kelvane;
using namespace Fakes;
using namespace Qt::StringLiterals;

class SettingsViewModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        world.emplace();
        model.emplace(world->services(), world->paths(), nullptr, &login);
        pane.emplace(*model, desktop);
    }
    void cleanup() {
        pane.reset();
        model.reset();
        world.reset();
        login = {};
        desktop = {};
    }

    void theSchedulesHaveTheirTitles() {
        QCOMPARE(pane->schedules(),
                 QStringList({u"Off — only when I ask"_s, u"Every hour"_s, u"Every 4 hours"_s, u"Once a day"_s}));
        QCOMPARE(pane->scheduleIndex(), 3);
    }

    void schedule_data() {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("seconds");
        QTest::newRow("off") << 0 << 0;
        QTest::newRow("hourly") << 1 << 3600;
        QTest::newRow("every four hours") << 2 << 14400;
        QTest::newRow("daily") << 3 << 86400;
        QTest::newRow("a choice that does not exist changes nothing") << 4 << 86400;
    }
    void schedule() {
        QFETCH(int, index);
        pane->setScheduleIndex(index);
        QTEST(static_cast<int>(world->profileStore().settings.autoUpdate), "seconds");
    }

    void turningTheScheduleOffEndsThePause() {
        pinActive(*model, {u"b"_s, u"a"_s});
        model->applyActive(AppModel::Notify::failuresOnly);
        QVERIFY(waitForChange(*model));
        world->setDock({u"e"_s});
        QVERIFY(refreshAndWait(*model));
        QVERIFY(model->settings().autoPaused);
        pane->setScheduleIndex(0);
        QVERIFY(!model->settings().autoPaused);
    }

    void openAtLoginFollowsTheSystem() {
        pane->setOpensAtLogin(true);
        QVERIFY(login.enabled);
        QVERIFY(pane->opensAtLogin());
        login.refusal = u"Not today."_s;
        QSignalSpy spy(&*pane, &SettingsViewModel::changed);
        pane->setOpensAtLogin(false);
        QVERIFY(pane->opensAtLogin());
        QVERIFY(spy.count() > 0);
        QCOMPARE(model->toast()->text, u"macOS didn't allow that: Not today."_s);
    }

    void trackingIsSwitchedAndSaved() {
        QVERIFY(pane->tracksUsage());
        pane->setTracksUsage(false);
        QVERIFY(!pane->tracksUsage());
        QVERIFY(!model->tracker().isEnabled());
        QVERIFY(!world->profileStore().settings.trackingEnabled);
    }

    void theUsageFileIsRevealed() {
        UsageStore usage(world->paths().usage());
        usage.addSeconds(1, u"a"_s, {}, world->clock.now());
        usage.save(world->clock.now());
        pane->showData();
        QCOMPARE(desktop.revealed, QStringList{world->paths().usage()});
    }

    void withoutAUsageFileItsFolderIsRevealed() {
        pane->showData();
        QCOMPARE(desktop.revealed, QStringList{world->paths().support()});
    }

    void theHomeFolderIsWrittenShort() {
        world->folders.homePath = world->directory.path();
        QCOMPARE(pane->folder(), u"~/Kelvane"_s);
        world->folders.homePath = u"/Users/other"_s;
        QCOMPARE(pane->folder(), world->directory.filePath(u"Kelvane"_s));
    }

    void erasingKeepsProfilesAndSnapshots() {
        UsageStore usage(world->paths().usage());
        usage.addSeconds(600, ModelWorld::bundleID(u"a"_s), {}, world->clock.now());
        usage.save(world->clock.now());
        AppModel other(world->services(), world->paths(), nullptr, nullptr);
        other.captureOriginal();
        SettingsViewModel settings(other, desktop);
        const QList<Profile> profiles = other.profiles();
        QSignalSpy spy(&other, &AppModel::refreshed);
        settings.eraseUsage();
        QCOMPARE(other.toast()->text, u"Usage history erased."_s);
        QVERIFY(!QFile::exists(world->paths().usage()));
        QVERIFY(spy.wait());
        QCOMPARE(other.profiles(), profiles);
        QCOMPARE(other.snapshots().size(), 1);
    }

    void theVersionIsTheApplications() {
        QCoreApplication::setApplicationVersion(u"1.2.3"_s);
        QCOMPARE(pane->version(), u"1.2.3"_s);
    }

private:
    std::optional<ModelWorld> world;
    std::optional<AppModel> model;
    std::optional<SettingsViewModel> pane;
    Fakes::LoginItem login;
    Fakes::Desktop desktop;
};

QTEST_GUILESS_MAIN(SettingsViewModelTest)
#include "SettingsViewModelTest.moc"
