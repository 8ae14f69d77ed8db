#include "Kelvane/Shell/MainMenu.h"
#include "WindowTest.h"

#include <QApplication>

using namespace DockCore;
using namespace Kelvane;
using namespace Fakes;
using namespace Qt::StringLiterals;

class ProfilesPaneTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        mac.emplace();
        pinActive(*mac->model, {u"Mail"_s, u"Notes"_s, u"Books"_s});
        mac->open(Pane::profiles);
    }
    void cleanup() { mac.reset(); }

    void aNewProfileIsSelectedWithItsNameToTypeOver() {
        mac->click(u"New profile"_s);
        QCOMPARE(mac->focused(), u"Name"_s);
        mac->type(u"Focus"_s);
        QCOMPARE(mac->world.profileStore().profiles.last().name, u"Focus"_s);
    }

    void aDuplicateIsSelectedWithItsNameToTypeOver() {
        mac->click(u"Duplicate profile"_s);
        QCOMPARE(mac->focused(), u"Name"_s);
        QCOMPARE(mac->world.profileStore().profiles.last().name, u"Work Copy"_s);
        mac->type(u"Twin"_s);
        QCOMPARE(mac->world.profileStore().profiles.last().name, u"Twin"_s);
        QCOMPARE(mac->world.profileStore().profiles.last().pinned,
                 ModelWorld::bundleIDs({u"Mail"_s, u"Notes"_s, u"Books"_s}));
    }

    void aSymbolIsChosen() {
        mac->click(u"airplane"_s);
        QCOMPARE(mac->world.profileStore().active().symbol, u"airplane"_s);
    }

    void theChevronsMoveOnePlace() {
        mac->click(u"Move down"_s, 0);
        QCOMPARE(pinned(), u"Notes Mail Books"_s);
        mac->click(u"Move up"_s, 2);
        QCOMPARE(pinned(), u"Notes Books Mail"_s);
    }

    void draggingReorders_data() {
        QTest::addColumn<QString>("dragged");
        QTest::addColumn<int>("rows");
        QTest::addColumn<QString>("order");
        QTest::newRow("down past one") << u"Mail"_s << 1 << u"Notes Mail Books"_s;
        QTest::newRow("down to the end") << u"Mail"_s << 5 << u"Notes Books Mail"_s;
        QTest::newRow("up to the front") << u"Books"_s << -2 << u"Books Mail Notes"_s;
        QTest::newRow("not far enough") << u"Mail"_s << 0 << u"Mail Notes Books"_s;
    }
    void draggingReorders() {
        QFETCH(QString, dragged);
        QFETCH(int, rows);
        QQuickItem* row = mac->find(dragged);
        QVERIFY(row != nullptr);
        const QPoint from = row->mapToScene(QPointF(150, 22)).toPoint();
        QTest::mousePress(mac->quick(), Qt::LeftButton, {}, from);
        for (int step = 1; step <= 4; ++step)
            QTest::mouseMove(mac->quick(), from + QPoint(0, (rows * 44 + (rows == 0 ? 12 : 0)) * step / 4));
        QTest::mouseRelease(mac->quick(), Qt::LeftButton, {}, from + QPoint(0, rows * 44));
        QTEST(pinned(), "order");
    }

    void aRemovedAppIsBroughtBack() {
        mac->click(u"Remove"_s, 1);
        QCOMPARE(pinned(), u"Mail Books"_s);
        mac->click(u"Undo Remove “Notes”"_s);
        QCOMPARE(pinned(), u"Mail Notes Books"_s);
    }

    void theKeyboardRemovesMovesAndBringsBack() {
        mac->tabTo(u"Mail"_s);
        mac->press(Qt::Key_Down);
        mac->press(Qt::Key_Down, Qt::AltModifier);
        QCOMPARE(pinned(), u"Mail Books Notes"_s);
        mac->press(Qt::Key_Delete);
        QCOMPARE(pinned(), u"Mail Books"_s);
        const MainMenu menu(MainMenu::ApplicationMenu::ours);
        mac->press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(pinned(), u"Mail Books Notes"_s);
        mac->press(Qt::Key_Backspace);
        QCOMPARE(pinned().count(u' '), 1);
    }

    void appsAreAddedBySearch() {
        mac->click(u"Add Apps…"_s);
        QTRY_COMPARE(mac->focused(), u"Search apps"_s);
        mac->type(u"codew"_s);
        mac->press(Qt::Key_Return);
        QCOMPARE(pinned(), u"Mail Notes Books Codeway"_s);
        mac->click(u"Done"_s);
        QTRY_VERIFY(mac->find(u"Search apps"_s) == nullptr);
    }

    void appsAreAddedByPlusAndDoubleClick() {
        mac->click(u"Add Apps…"_s);
        QTRY_COMPARE(mac->focused(), u"Search apps"_s);
        mac->type(u"ch"_s);
        mac->click(u"Add"_s);
        QCOMPARE(pinned(), u"Mail Notes Books Chess"_s);
        QVERIFY(mac->find(u"Already added"_s) != nullptr);
        mac->press(Qt::Key_A, Qt::ControlModifier);
        mac->type(u"maps"_s);
        QQuickItem* row = mac->find(u"Maps"_s);
        QVERIFY(row != nullptr);
        QTest::mouseDClick(mac->quick(), Qt::LeftButton, {}, row->mapToScene(QPointF(120, 20)).toPoint());
        QCOMPARE(pinned(), u"Mail Notes Books Chess Maps"_s);
        mac->press(Qt::Key_Escape);
    }

    void theKeysComeBackFromAConfirmation() {
        mac->click(u"Delete Profile…"_s);
        QTRY_COMPARE(mac->focused(), u"Delete"_s);
        mac->click(u"Cancel"_s);
        QTRY_COMPARE(mac->focused(), u"Delete Profile…"_s);
        QVERIFY(!mac->quick()->activeFocusItem()->property("visualFocus").toBool());
        mac->press(Qt::Key_Tab);
        mac->tabTo(u"Delete Profile…"_s);
        mac->press(Qt::Key_Space);
        QTRY_COMPARE(mac->focused(), u"Delete"_s);
        mac->press(Qt::Key_Escape);
        QTRY_COMPARE(mac->focused(), u"Delete Profile…"_s);
        QVERIFY(mac->quick()->activeFocusItem()->property("visualFocus").toBool());
    }

    void aTabStopsOnceAtTheStepper() {
        mac->tabTo(u"Most-used apps"_s);
        mac->press(Qt::Key_Tab);
        QCOMPARE(mac->focused(), u"Last 7 days"_s);
    }

    void aConfirmedDeletionRemovesTheProfile() {
        const qsizetype before = mac->model->profiles().size();
        const QStringList dock = mac->world.dock();
        mac->click(u"Delete Profile…"_s);
        QTRY_VERIFY(mac->find(u"Your Dock stays as it is."_s) != nullptr);
        mac->press(Qt::Key_Escape);
        QTRY_VERIFY(mac->find(u"Your Dock stays as it is."_s) == nullptr);
        QCOMPARE(mac->model->profiles().size(), before);
        mac->click(u"Delete Profile…"_s);
        mac->click(u"Delete"_s);
        QTRY_COMPARE(mac->model->profiles().size(), before - 1);
        QCOMPARE(mac->world.dock(), dock);
    }

    void makingActiveAndApplying() {
        mac->click(u"New profile"_s);
        mac->click(u"Make Active"_s);
        QCOMPARE(mac->model->activeProfile().name, u"New Profile"_s);
        QVERIFY(!mac->model->isWorking());
        mac->click(u"Apply to Dock"_s);
        QVERIFY(mac->waitForChange());
        QCOMPARE(mac->model->toast()->text, u"Dock updated for New Profile."_s);
    }

    void aProfileIsEditedWithoutAPointer() {
        mac->tabTo(u"New profile"_s);
        mac->press(Qt::Key_Return);
        mac->type(u"Keys"_s);
        mac->tabTo(u"briefcase"_s);
        mac->press(Qt::Key_Return);
        mac->tabTo(u"Add Apps…"_s);
        mac->press(Qt::Key_Return);
        QTRY_COMPARE(mac->focused(), u"Search apps"_s);
        mac->type(u"photos"_s);
        mac->press(Qt::Key_Return);
        mac->press(Qt::Key_Escape);
        QTRY_VERIFY(mac->find(u"Search apps"_s) == nullptr);
        mac->tabTo(u"Most-used apps"_s);
        mac->press(Qt::Key_Up);
        const Profile made = mac->world.profileStore().profiles.last();
        QCOMPARE(made.name, u"Keys"_s);
        QCOMPARE(made.symbol, u"briefcase"_s);
        QCOMPARE(made.pinned, ModelWorld::bundleIDs({u"Photos"_s}));
        QCOMPARE(made.adaptiveSlots, 9);
    }

private:
    QString pinned() {
        QStringList words;
        const QStringList bundleIDs = mac->world.profileStore().active().pinned;
        for (const QString& bundleID : bundleIDs)
            words += bundleID.section(u'.', -1);
        return words.join(u' ');
    }

    std::optional<WindowWorld> mac;
};

int main(int argc, char** argv) {
    return runWindowTest<ProfilesPaneTest, QApplication>(argc, argv);
}
#include "ProfilesPaneTest.moc"
