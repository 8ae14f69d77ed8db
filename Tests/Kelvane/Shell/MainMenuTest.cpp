#include "Kelvane/Shell/MainMenu.h"

#include <QAction>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

using namespace Kelvane;
using namespace Qt::StringLiterals;

class MainMenuTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ownApplicationMenuHoldsItsItems();
    void systemsApplicationMenuTakesItsItemsByRole();
    void keysOfTheWindowMenuAskTheOwner_data();
    void keysOfTheWindowMenuAskTheOwner();
    void editMenuActsOnTheFocus();
    void editKeysNobodyTakesGoOn();

private:
    using ApplicationMenu = MainMenu::ApplicationMenu;

    /// Each menu as its title, then its items: "title key", or "-" for a separator.
    static QList<QStringList> menus(MainMenu& menu) {
        QList<QStringList> menus;
        for (const QMenu* entry : menu.bar().findChildren<QMenu*>(Qt::FindDirectChildrenOnly)) {
            QStringList lines = {entry->title()};
            for (const QAction* action : entry->actions())
                lines.append(action->isSeparator() ? u"-"_s
                                                   : (action->text() + u' ' + action->shortcut().toString()).trimmed());
            menus.append(lines);
        }
        return menus;
    }
    static QStringList editMenu() {
        return {u"Edit"_s,       u"Undo Ctrl+Z"_s, u"Redo Ctrl+Shift+Z"_s, u"-"_s,
                u"Cut Ctrl+X"_s, u"Copy Ctrl+C"_s, u"Paste Ctrl+V"_s,      u"Select All Ctrl+A"_s};
    }
};

void MainMenuTest::ownApplicationMenuHoldsItsItems() {
    MainMenu menu(ApplicationMenu::ours);
    const QList<QStringList> expected = {
        {u"Kelvane"_s, u"About Kelvane"_s, u"-"_s, u"Hide Kelvane Ctrl+H"_s, u"Quit Kelvane Ctrl+Q"_s},
        editMenu(),
        {u"Window"_s, u"Close Ctrl+W"_s, u"Minimize Ctrl+M"_s}};
    QCOMPARE(menus(menu), expected);
}

void MainMenuTest::systemsApplicationMenuTakesItsItemsByRole() {
    MainMenu menu(ApplicationMenu::systems);
    const QList<QStringList> expected = {
        editMenu(),
        {u"Window"_s, u"Close Ctrl+W"_s, u"Minimize Ctrl+M"_s, u"About Kelvane"_s, u"Quit Kelvane Ctrl+Q"_s}};
    QCOMPARE(menus(menu), expected);
    const QList<QAction*> items = menu.bar().findChildren<QMenu*>().last()->actions();
    QCOMPARE(items[2]->menuRole(), QAction::AboutRole);
    QCOMPARE(items[3]->menuRole(), QAction::QuitRole);
}

void MainMenuTest::keysOfTheWindowMenuAskTheOwner_data() {
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QByteArray>("asked");
    QTest::newRow("hide") << Qt::Key_H << QByteArray(SIGNAL(hideRequested()));
    QTest::newRow("quit") << Qt::Key_Q << QByteArray(SIGNAL(quitRequested()));
    QTest::newRow("close") << Qt::Key_W << QByteArray(SIGNAL(closeRequested()));
    QTest::newRow("minimize") << Qt::Key_M << QByteArray(SIGNAL(minimizeRequested()));
}

void MainMenuTest::keysOfTheWindowMenuAskTheOwner() {
    QFETCH(Qt::Key, key);
    QFETCH(QByteArray, asked);
    MainMenu menu(ApplicationMenu::ours);
    const QSignalSpy spy(&menu, asked.constData());
    QWidget window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTest::keyClick(window.windowHandle(), key, Qt::ControlModifier);
    QCOMPARE(spy.size(), 1);
}

void MainMenuTest::editMenuActsOnTheFocus() {
    MainMenu menu(ApplicationMenu::ours);
    QLineEdit field(u"once"_s);
    field.show();
    field.activateWindow();
    field.setFocus();
    QTRY_COMPARE(QGuiApplication::focusObject(), &field);
    const QList<QAction*> edit = menu.bar().findChildren<QMenu*>()[1]->actions();
    edit.last()->trigger();
    QCOMPARE(field.selectedText(), u"once"_s);
    edit[3]->trigger();
    edit[4]->trigger();
    QCOMPARE(field.text(), QString());
    edit[0]->trigger();
    QCOMPARE(field.text(), u"once"_s);
    edit[1]->trigger();
    QCOMPARE(field.text(), QString());
    edit[5]->trigger();
    QCOMPARE(field.text(), u"once"_s);
}

void MainMenuTest::editKeysNobodyTakesGoOn() {
    class Listener : public QWidget {
    public:
        int keys = 0;

    protected:
        void keyPressEvent(QKeyEvent* event) override { keys += event->key() == Qt::Key_Control ? 0 : 1; }
    };
    const MainMenu menu(ApplicationMenu::ours);
    Listener listener;
    listener.setFocusPolicy(Qt::StrongFocus);
    listener.show();
    listener.activateWindow();
    listener.setFocus();
    QTRY_COMPARE(QGuiApplication::focusObject(), &listener);
    for (const Qt::Key key : {Qt::Key_Z, Qt::Key_X, Qt::Key_C, Qt::Key_V, Qt::Key_A})
        QTest::keyClick(listener.windowHandle(), key, Qt::ControlModifier);
    QCOMPARE(listener.keys, 5);
}

QTEST_MAIN(MainMenuTest)
#include "MainMenuTest.moc"
