#include "DockCore/Storage/Paths.h"
#include "WindowTest.h"

#include <QFile>

using namespace DockCore;
using namespace Kelvane;
using namespace Fakes;
using namespace Qt::StringLiterals;

/// Usage, history and settings in the real window.
class OtherPanesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { mac.emplace(); }
    void cleanup() { mac.reset(); }

    void theWindowOfTheRankingIsChosen() {
        mac->open(Pane::usage);
        QVERIFY(mac->find(u"active · Last 7 days"_s) != nullptr);
        mac->click(u"Last 30 days"_s);
        QVERIFY(mac->find(u"active · Last 30 days"_s) != nullptr);
    }

    void aRowTellsWhyItStandsWhereItStands() {
        mac->open(Pane::usage);
        QQuickItem* row = mac->find(u"Terminal"_s);
        QVERIFY(row != nullptr);
        const double closed = row->height();
        mac->click(u"Terminal"_s);
        QTRY_VERIFY(row->height() > closed);
        mac->click(u"Terminal"_s);
        QTRY_COMPARE(row->height(), closed);
        // The list is one stop of the Tab key, at its first row.
        mac->tabTo(u"Terminal"_s);
        mac->press(Qt::Key_Down);
        mac->press(Qt::Key_Return);
        QTRY_VERIFY(mac->find(mac->focused())->height() > 60);
    }

    void withoutUsageThePaneSaysSo() {
        mac.emplace(QList<WindowWorld::App>{{u"Mail"_s}});
        mac->open(Pane::usage);
        QVERIFY(mac->find(u"No usage yet"_s) != nullptr);
        QVERIFY(mac->find(u"Use your Mac as normal. Apps appear here as you use them."_s) != nullptr);
    }

    void aSavedDockIsRestoredAfterAskingOnce() {
        arrange();
        mac->open(Pane::history);
        const QStringList before = mac->world.dock();
        mac->click(u"Restore"_s, 1);
        QTRY_VERIFY(mac->find(u"Restore this Dock?"_s) != nullptr);
        QVERIFY(mac->find(u"Your current Dock is saved first, so you can come back to it."_s) != nullptr);
        mac->press(Qt::Key_Escape);
        QTRY_VERIFY(mac->find(u"Restore this Dock?"_s) == nullptr);
        QCOMPARE(mac->world.dock(), before);
        mac->click(u"Restore"_s, 1);
        QTest::qWait(300);
        mac->press(Qt::Key_Return);
        QVERIFY(mac->waitForChange());
        QCOMPARE(mac->world.dock().first(), u"Mail"_s);
        QCOMPARE(mac->model->snapshots().first().reason, u"Before restoring"_s);
    }

    void aSavedDockIsDeleted() {
        arrange();
        mac->open(Pane::history);
        const QStringList before = mac->world.dock();
        mac->click(u"Delete"_s);
        QTRY_COMPARE(mac->model->snapshots().size(), 1);
        QTRY_VERIFY(mac->find(u"Delete"_s) == nullptr);
        QCOMPARE(mac->world.dock(), before);
    }

    void thePreviousDockIsRestoredByTheHeadersButton() {
        arrange();
        mac->open(Pane::history);
        mac->click(u"Restore Previous Dock"_s);
        QVERIFY(mac->waitForChange());
        QCOMPARE(mac->world.dock().first(), u"Mail"_s);
    }

    void aRowShowsWhatRestoringWouldChange() {
        arrange();
        mac->open(Pane::history);
        mac->click(u"Show what restoring would change"_s);
        QTRY_VERIFY(mac->find(u"Hide what changes"_s) != nullptr);
    }

    void everySwitchOfTheSettingsIsSaved() {
        mac->open(Pane::settings);
        mac->click(u"Open at login"_s);
        QVERIFY(mac->login.enabled);
        mac->click(u"Track app usage"_s);
        QVERIFY(!mac->world.profileStore().settings.trackingEnabled);
        mac->login.refusal = u"No."_s;
        mac->click(u"Open at login"_s);
        QVERIFY(mac->find(u"Open at login"_s)->property("checked").toBool());
    }

    void theScheduleIsChosenFromItsMenu() {
        mac->open(Pane::settings);
        mac->click(u"Reorganize automatically"_s);
        mac->click(u"Every hour"_s);
        QTRY_COMPARE(mac->world.profileStore().settings.autoUpdate, AutoUpdate::hourly);
    }

    void theReturnKeyOpensAMenuAndChooses() {
        mac->open(Pane::settings);
        mac->tabTo(u"Reorganize automatically"_s);
        mac->press(Qt::Key_Return);
        QTRY_VERIFY(mac->find(u"Every hour"_s) != nullptr);
        mac->press(Qt::Key_Up);
        mac->press(Qt::Key_Up);
        QVERIFY(mac->find(u"Every hour"_s) != nullptr);
        QCOMPARE(mac->world.profileStore().settings.autoUpdate, AutoUpdate::daily);
        mac->press(Qt::Key_Return);
        QTRY_VERIFY(mac->find(u"Every 4 hours"_s) == nullptr);
        QCOMPARE(mac->world.profileStore().settings.autoUpdate, AutoUpdate::hourly);
    }

    void thePauseIsShownAndResumed() {
        arrange();
        mac->world.setDock({u"Chess"_s});
        mac->open(Pane::settings);
        QVERIFY(mac->find(u"Paused: the Dock was changed outside Kelvane."_s) != nullptr);
        mac->click(u"Resume"_s);
        QVERIFY(mac->waitForChange());
        QVERIFY(!mac->world.profileStore().settings.autoPaused);
        QTRY_VERIFY(mac->find(u"Paused: the Dock was changed outside Kelvane."_s) == nullptr);
    }

    void theDataIsShownAndErasedAfterAsking() {
        mac->open(Pane::settings);
        mac->click(u"Show in Finder"_s);
        QCOMPARE(mac->desktop.revealed, QStringList{mac->world.paths().usage()});
        mac->click(u"Erase"_s);
        QTRY_VERIFY(mac->find(u"Profiles and saved Docks are kept. Suggestions fall back to macOS's own record of "
                              "opened apps."_s) != nullptr);
        QVERIFY(QFile::exists(mac->world.paths().usage()));
        QTest::qWait(300);
        mac->press(Qt::Key_Return);
        QTRY_VERIFY(!QFile::exists(mac->world.paths().usage()));
        QCOMPARE(mac->model->toast()->text, u"Usage history erased."_s);
    }

private:
    /// Lets the application change the Dock once, so that there is something to go back to.
    void arrange() {
        pinActive(*mac->model, {u"Books"_s, u"Chess"_s});
        mac->model->applyActive(AppModel::Notify::failuresOnly);
        QVERIFY(mac->waitForChange());
    }

    std::optional<WindowWorld> mac;
};

int main(int argc, char** argv) {
    return runWindowTest<OtherPanesTest>(argc, argv);
}
#include "OtherPanesTest.moc"
