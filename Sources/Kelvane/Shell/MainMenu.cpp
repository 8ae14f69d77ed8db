#include "Kelvane/Shell/MainMenu.h"

#include <QAction>
#include <QGuiApplication>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace Kelvane {

namespace {
/// What carries out a command of the Edit menu: the field with the keys, or the nearest of what it lies in. Text fields
/// of every kind, and whatever else can, offer these as invokable functions of the same name; what says that it cannot
/// at the moment, as with "canUndo", is passed over.
QObject* target(const QByteArray& function) {
    const QByteArray permission = "can" + function.left(1).toUpper() + function.mid(1);
    for (QObject* object = QGuiApplication::focusObject(); object != nullptr;
         object = object->property("parent").value<QObject*>()) {
        const QVariant isPossible = object->property(permission.constData());
        if (object->metaObject()->indexOfMethod(function + "()") >= 0 && (!isPossible.isValid() || isPossible.toBool()))
            return object;
    }
    return nullptr;
}

void add(QMenu& menu, const QString& title, const QKeySequence& key, const char* function) {
    QAction* action = menu.addAction(title, key);
    action->setMenuRole(QAction::NoRole);
    action->setData(QByteArray(function));
    QObject::connect(action, &QAction::triggered, [function] {
        if (QObject* object = target(function))
            QMetaObject::invokeMethod(object, function);
    });
}
} // namespace

MainMenu::MainMenu(ApplicationMenu applicationMenu) {
    if (applicationMenu == ApplicationMenu::ours)
        addApplicationMenu();
    addEditMenu();
    QMenu& window = addWindowMenu();
    if (applicationMenu == ApplicationMenu::systems) {
        // They move to the system's menu by their roles; a menu left empty by that would stay behind.
        addAbout(window);
        addQuit(window);
    }
    if (!m_bar.isNativeMenuBar())
        qApp->installEventFilter(this);
}

void MainMenu::addApplicationMenu() {
    QMenu& menu = *m_bar.addMenu(u"Kelvane"_s);
    addAbout(menu);
    menu.addSeparator();
    QAction* hide = menu.addAction(u"Hide Kelvane"_s, QKeySequence(Qt::CTRL | Qt::Key_H));
    connect(hide, &QAction::triggered, this, &MainMenu::hideRequested);
    addQuit(menu);
}

void MainMenu::addAbout(QMenu& menu) const {
    QAction* about = menu.addAction(u"About Kelvane"_s);
    about->setMenuRole(QAction::AboutRole);
    connect(about, &QAction::triggered, this, &MainMenu::aboutRequested);
}

void MainMenu::addQuit(QMenu& menu) const {
    QAction* quit = menu.addAction(u"Quit Kelvane"_s, QKeySequence(Qt::CTRL | Qt::Key_Q));
    quit->setMenuRole(QAction::QuitRole);
    connect(quit, &QAction::triggered, this, &MainMenu::quitRequested);
}

void MainMenu::addEditMenu() {
    QMenu& menu = *m_bar.addMenu(u"Edit"_s);
    add(menu, u"Undo"_s, QKeySequence(Qt::CTRL | Qt::Key_Z), "undo");
    add(menu, u"Redo"_s, QKeySequence(Qt::SHIFT | Qt::CTRL | Qt::Key_Z), "redo");
    menu.addSeparator();
    add(menu, u"Cut"_s, QKeySequence(Qt::CTRL | Qt::Key_X), "cut");
    add(menu, u"Copy"_s, QKeySequence(Qt::CTRL | Qt::Key_C), "copy");
    add(menu, u"Paste"_s, QKeySequence(Qt::CTRL | Qt::Key_V), "paste");
    add(menu, u"Select All"_s, QKeySequence(Qt::CTRL | Qt::Key_A), "selectAll");
}

QMenu& MainMenu::addWindowMenu() {
    QMenu& menu = *m_bar.addMenu(u"Window"_s);
    QAction* close = menu.addAction(u"Close"_s, QKeySequence(Qt::CTRL | Qt::Key_W));
    connect(close, &QAction::triggered, this, &MainMenu::closeRequested);
    QAction* minimize = menu.addAction(u"Minimize"_s, QKeySequence(Qt::CTRL | Qt::Key_M));
    connect(minimize, &QAction::triggered, this, &MainMenu::minimizeRequested);
    return menu;
}

bool MainMenu::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !watched->isWindowType())
        return QObject::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    const QKeySequence pressed(key->keyCombination());
    const QList<QMenu*> menus = m_bar.findChildren<QMenu*>(Qt::FindDirectChildrenOnly);
    for (const QMenu* menu : menus) {
        const QList<QAction*> actions = menu->actions();
        for (QAction* action : actions) {
            const QByteArray function = action->data().toByteArray();
            const bool hasTarget = function.isEmpty() || target(function) != nullptr;
            if (action->shortcut() == pressed && hasTarget) {
                action->trigger();
                return true;
            }
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Kelvane
