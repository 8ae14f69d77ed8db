#include "Kelvane/Shell/StatusMenu.h"

#include "Support/ModelWorld.h"

#include <QAction>
#include <QApplication>
#include <QIcon>
#include <QTest>

using namespace DockCore;
using namespace Kelvane;
using namespace Fakes;
using namespace Qt::StringLiterals;

/// The menu on a model whose active profile "Work" pins c and a, while the Dock holds a and b.
class StatusMenuTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        world.emplace();
        model.emplace(world->services(), world->paths(), nullptr, nullptr);
        pinActive(*model, {u"c"_s, u"a"_s});
        symbols.clear();
        menu = std::make_unique<StatusMenu>(*model, [this](const QString& name) {
            symbols.append(name);
            return QIcon();
        });
    }
    void cleanup() {
        menu.reset();
        model.reset();
        world.reset();
    }

    void itemsStandInTheirOrder();
    void keysAreTheDocumentedOnes();
    void profilesCarryTheirSymbolsAndTheActiveOneItsCheckMark();
    void oneProfileIsStillListedWithItsCheckMark();
    void namesAreShownAsTheyStand();
    void restoreIsDisabledWhenNothingPrecedesTheDock();
    void pausedItemsComeAndGo();
    void switchingTheProfileAppliesIt();
    void reorganizeRefreshesFirst();
    void resumeRefreshesFirst();
    void trackingIsToggled();
    void openingAndQuittingAreTheOwners();

private:
    QStringList titles() {
        menu->rebuild();
        QStringList result;
        for (const QAction* action : menu->menu().actions())
            result.append(action->isSeparator() ? u"-"_s : action->text());
        return result;
    }
    QAction* item(const QString& title) {
        menu->rebuild();
        const QList<QAction*> actions = menu->menu().actions();
        const auto found =
            std::ranges::find_if(actions, [&title](const QAction* action) { return action->text() == title; });
        return found == actions.end() ? nullptr : *found;
    }

    std::optional<ModelWorld> world;
    std::optional<AppModel> model;
    QStringList symbols;
    std::unique_ptr<StatusMenu> menu;
};

void StatusMenuTest::itemsStandInTheirOrder() {
    QStringList expected = {u"Profile"_s};
    for (const Profile& profile : model->profiles())
        expected.append(profile.name);
    expected +=
        {u"-"_s, u"Reorganize Dock Now"_s, u"Restore Previous Dock"_s, u"-"_s, u"Track App Usage"_s, u"Open Kelvane…"_s,
         u"-"_s, u"Quit Kelvane"_s};
    QCOMPARE(titles(), expected);
    QVERIFY(!item(u"Profile"_s)->isEnabled());
}

void StatusMenuTest::keysAreTheDocumentedOnes() {
    QCOMPARE(item(u"Reorganize Dock Now"_s)->shortcut(), QKeySequence(u"Ctrl+R"_s));
    QCOMPARE(item(u"Restore Previous Dock"_s)->shortcut(), QKeySequence(u"Ctrl+Z"_s));
    QCOMPARE(item(u"Open Kelvane…"_s)->shortcut(), QKeySequence(u"Ctrl+O"_s));
    QCOMPARE(item(u"Quit Kelvane"_s)->shortcut(), QKeySequence(u"Ctrl+Q"_s));
    QVERIFY(item(u"Track App Usage"_s)->shortcut().isEmpty());
}

void StatusMenuTest::profilesCarryTheirSymbolsAndTheActiveOneItsCheckMark() {
    symbols.clear();
    menu->rebuild();
    QStringList expected;
    for (const Profile& profile : model->profiles())
        expected.append(profile.symbol);
    QCOMPARE(symbols, expected);
    model->activate(model->profiles()[2].id, AppModel::Apply::no);
    menu->rebuild();
    for (qsizetype index = 0; index < model->profiles().size(); ++index)
        QCOMPARE(menu->menu().actions()[index + 1]->isChecked(), index == 2);
}

void StatusMenuTest::oneProfileIsStillListedWithItsCheckMark() {
    while (model->profiles().size() > 1)
        model->removeProfile(model->profiles().constLast().id);
    QVERIFY(item(u"Work"_s)->isChecked());
}

void StatusMenuTest::namesAreShownAsTheyStand() {
    Profile profile = model->activeProfile();
    profile.name = u"R&D 仕事"_s;
    model->update(profile);
    QVERIFY(item(u"R&&D 仕事"_s) != nullptr);
}

void StatusMenuTest::restoreIsDisabledWhenNothingPrecedesTheDock() {
    QVERIFY(refreshAndWait(*model));
    QVERIFY(!item(u"Restore Previous Dock"_s)->isEnabled());
    model->applyActive(AppModel::Notify::always);
    QVERIFY(waitForChange(*model));
    QAction* restore = item(u"Restore Previous Dock"_s);
    QVERIFY(restore->isEnabled());
    restore->trigger();
    QVERIFY(waitForChange(*model));
    QCOMPARE(world->dock(), QStringList({u"a"_s, u"b"_s}));
}

void StatusMenuTest::pausedItemsComeAndGo() {
    QVERIFY(refreshAndWait(*model));
    model->applyActive(AppModel::Notify::always);
    QVERIFY(waitForChange(*model));
    QVERIFY(!titles().contains(u"Automatic updates paused"_s));
    world->setDock({u"e"_s});
    QVERIFY(refreshAndWait(*model));
    const QStringList paused = titles();
    const qsizetype place = paused.indexOf(u"Restore Previous Dock"_s);
    QCOMPARE(paused.mid(place + 1, 5), QStringList({u"-"_s, u"Automatic updates paused"_s, u"Resume and Reorganize"_s,
                                                    u"-"_s, u"Track App Usage"_s}));
    QVERIFY(!item(u"Automatic updates paused"_s)->isEnabled());
    item(u"Resume and Reorganize"_s)->trigger();
    QTRY_COMPARE_WITH_TIMEOUT(world->dock(), QStringList({u"c"_s, u"a"_s}), 10000);
    QTRY_VERIFY(!model->isWorking());
    QVERIFY(!titles().contains(u"Automatic updates paused"_s));
}

void StatusMenuTest::switchingTheProfileAppliesIt() {
    Profile other = model->profiles()[3];
    other.name = u"Only e"_s;
    other.pinned = ModelWorld::bundleIDs({u"e"_s});
    other.excluded.clear();
    other.adaptiveSlots = 0;
    model->update(other);
    item(u"Only e"_s)->trigger();
    QTRY_COMPARE_WITH_TIMEOUT(world->dock(), QStringList{u"e"_s}, 10000);
    QTRY_VERIFY(!model->isWorking());
    QCOMPARE(model->activeProfile().id, other.id);
}

void StatusMenuTest::reorganizeRefreshesFirst() {
    QSignalSpy refreshed(&*model, &AppModel::refreshed);
    item(u"Reorganize Dock Now"_s)->trigger();
    QVERIFY(!model->isWorking());
    QVERIFY(refreshed.wait());
    QVERIFY(model->isWorking());
    QVERIFY(waitForChange(*model));
    QCOMPARE(world->dock(), QStringList({u"c"_s, u"a"_s}));
}

void StatusMenuTest::resumeRefreshesFirst() {
    QVERIFY(refreshAndWait(*model));
    model->applyActive(AppModel::Notify::always);
    QVERIFY(waitForChange(*model));
    world->setDock({u"e"_s});
    QVERIFY(refreshAndWait(*model));
    QSignalSpy refreshed(&*model, &AppModel::refreshed);
    item(u"Resume and Reorganize"_s)->trigger();
    QVERIFY(!model->isWorking());
    QVERIFY(refreshed.wait());
    QVERIFY(model->isWorking());
    QVERIFY(waitForChange(*model));
}

void StatusMenuTest::trackingIsToggled() {
    QVERIFY(item(u"Track App Usage"_s)->isChecked());
    item(u"Track App Usage"_s)->trigger();
    QVERIFY(!model->settings().trackingEnabled);
    QVERIFY(!item(u"Track App Usage"_s)->isChecked());
    item(u"Track App Usage"_s)->trigger();
    QVERIFY(model->settings().trackingEnabled);
}

void StatusMenuTest::openingAndQuittingAreTheOwners() {
    QSignalSpy opened(menu.get(), &StatusMenu::openRequested);
    QSignalSpy quit(menu.get(), &StatusMenu::quitRequested);
    item(u"Open Kelvane…"_s)->trigger();
    item(u"Quit Kelvane"_s)->trigger();
    QCOMPARE(opened.count(), 1);
    QCOMPARE(quit.count(), 1);
}

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    StatusMenuTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "StatusMenuTest.moc"
