#pragma once

#include "Kelvane/Views/MainWindow.h"
#include "Support/FakeDesktop.h"
#include "Support/FakeImages.h"
#include "Support/ModelWorld.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQuickTest/quicktest.h>

namespace Fakes {

/// A person's computer with the application's real window on it: applications with names, a Dock, a week of usage.
/// Controls are found by what a screen reader would say, and pressed and typed into as a person would.
class WindowWorld {
public:
    struct App {
        QString name;
        double minutesADay = 0;
        int daysUsed = 0;
    };

    /// Give `apps` to have others than the usual dozen; the first eight are in the Dock.
    explicit WindowWorld(const QList<App>& apps = usualApps()) {
        QAccessible::setActive(true);
        DockCore::UsageStore usage(world.paths().usage());
        for (const App& app : apps) {
            world.install(ModelWorld::bundleID(app.name), app.name);
            for (int day = 0; day < app.daysUsed; ++day) {
                const QDateTime moment = world.clock.now().addDays(-day);
                usage.addSeconds(app.minutesADay * 60 * (1 + day % 3) / 2, ModelWorld::bundleID(app.name), app.name,
                                 moment);
                usage.addActivation(ModelWorld::bundleID(app.name), app.name, moment);
            }
        }
        usage.save(world.clock.now());
        QStringList dock;
        for (const App& app : apps.mid(0, 8))
            dock += app.name;
        world.setDock(dock);
        model.emplace(world.services(), world.paths(), nullptr, &login);
        m_work.emplace(&*model, &Kelvane::AppModel::isWorkingChanged);
        model->captureOriginal();
    }

    static QList<App> usualApps() {
        const QStringList names = {QStringLiteral("Mail"),    QStringLiteral("Calendar"), QStringLiteral("Maps"),
                                   QStringLiteral("Halcyon"), QStringLiteral("Photos"),   QStringLiteral("Music"),
                                   QStringLiteral("Notes"),   QStringLiteral("Parley"),   QStringLiteral("Codeway"),
                                   QStringLiteral("Books"),   QStringLiteral("Chess"),    QStringLiteral("Terminal")};
        QList<App> apps;
        for (const QString& name : names)
            apps.append({name, 12.0 * static_cast<double>(1 + apps.size()), static_cast<int>(apps.size()) % 6});
        return apps;
    }

    /// Ends the first run without it, and shows a pane.
    void open(Kelvane::Pane pane) {
        model->finishOnboarding(Kelvane::AppModel::Apply::no);
        model->setPane(pane);
        show();
    }
    void show() {
        QVERIFY(refreshAndWait(*model));
        window.emplace(*model, desktop, images);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(quick()));
        // A new window is there before what it shows.
        const auto* content = quick()->findChild<QQuickItem*>(QStringLiteral("content"));
        QVERIFY(QTest::qWaitFor([content] { return !content->property("item").isNull(); }));
        settle();
    }
    /// Waits until the window draws nothing new: fades and steps are over.
    void settle() const {
        constexpr int longestPauseBetweenFrames = 100;
        constexpr int mostFrames = 500;
        QSignalSpy frames(quick(), &QQuickWindow::frameSwapped);
        while (frames.wait(longestPauseBetweenFrames))
            QVERIFY(frames.count() < mostFrames);
    }

    QQuickWindow* quick() const {
        for (QWindow* candidate : QGuiApplication::topLevelWindows()) {
            if (auto* found = qobject_cast<QQuickWindow*>(candidate); found != nullptr && found->isVisible())
                return found;
        }
        return nullptr;
    }

    /// The visible item that a screen reader calls so, the `nth` in reading order; controls come before the words
    /// beside them. Null when there is none.
    QQuickItem* find(const QString& name, int nth = 0) const {
        QList<QQuickItem*> controls;
        QList<QQuickItem*> words;
        collect(QAccessible::queryAccessibleInterface(quick()), name, controls, words);
        return (controls + words).value(nth);
    }

    void click(const QString& name, int nth = 0) {
        QQuickItem* item = nullptr;
        QVERIFY2(QTest::qWaitFor([&] { return (item = find(name, nth)) != nullptr; }), qPrintable(name));
        const QPoint centre = item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
        QTest::mouseClick(quick(), Qt::LeftButton, {}, centre);
        update();
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(quick(), key, modifiers);
        update();
    }
    void type(const QString& text) {
        for (const QChar character : text)
            QTest::sendKeyEvent(QTest::Click, quick(), Qt::Key_unknown, QString(character), Qt::NoModifier);
        update();
    }
    /// What a screen reader calls the control that takes the keys.
    QString focused() const {
        QObject* item = quick()->activeFocusItem();
        QAccessibleInterface* interface = item == nullptr ? nullptr : QAccessible::queryAccessibleInterface(item);
        return interface == nullptr ? QString() : interface->text(QAccessible::Name);
    }
    /// Walks with the Tab key until the control called so has the keys.
    void tabTo(const QString& name) {
        for (int i = 0; i < 200 && focused() != name; ++i)
            press(Qt::Key_Tab);
        QCOMPARE(focused(), name);
    }

    /// Waits for the end of one more change of the Dock than were waited for so far, however quickly it came.
    bool waitForChange() {
        m_workSeen += 2;
        return QTest::qWaitFor([this] { return m_work->count() >= m_workSeen; }, 10000);
    }

    ModelWorld world{QStringList()};
    Fakes::LoginItem login;
    Fakes::Desktop desktop;
    Fakes::Images images;
    std::optional<Kelvane::AppModel> model;
    std::optional<Kelvane::MainWindow> window;

private:
    /// A change says twice that work has changed: when it begins and when it ends.
    std::optional<QSignalSpy> m_work;
    int m_workSeen = 0;

    /// Delivers what is queued and lays the window out anew, unless it was closed.
    void update() const {
        QCoreApplication::processEvents();
        if (const QQuickWindow* shown = quick())
            QVERIFY(QQuickTest::qWaitForPolish(shown));
    }

    static void collect(QAccessibleInterface* node, const QString& name, QList<QQuickItem*>& controls,
                        QList<QQuickItem*>& words) {
        if (node == nullptr || node->state().invisible)
            return;
        if (auto* item = qobject_cast<QQuickItem*>(node->object());
            item != nullptr && node->text(QAccessible::Name) == name)
            (node->role() == QAccessible::StaticText ? words : controls).append(item);
        for (int i = 0; i < node->childCount(); ++i)
            collect(node->child(i), name, controls, words);
    }
};

} // namespace Fakes
