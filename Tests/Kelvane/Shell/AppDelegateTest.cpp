#include "Kelvane/Shell/AppDelegate.h"

#include "Support/WindowWorld.h"

#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QScopeGuard>
#include <QTest>
#include <QTimer>

using namespace Kelvane;
using namespace Fakes;
using namespace Qt::StringLiterals;
using Policy = Kelvane::Desktop::ActivationPolicy;

/// The application's life on a desktop that remembers what it was asked.
class AppDelegateTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { mac.emplace(); }
    void cleanup() {
        delegate.reset();
        mac.reset();
    }

    void afterTheFirstRunItStaysInTheMenuBar() {
        launch(AppDelegate::Window::onFirstRun);
        QCOMPARE(mac->desktop.policies, QList{Policy::accessory});
        QVERIFY(mac->quick() == nullptr);
    }

    void theFirstRunOpensTheWindow() {
        delegate.emplace(*mac->model, mac->desktop, mac->images, makeWindow);
        delegate->finishLaunching(AppDelegate::Window::onFirstRun);
        QCOMPARE(mac->desktop.policies, (QList{Policy::accessory, Policy::regular}));
        QVERIFY(mac->quick() != nullptr);
    }

    void askedForItOpensTheWindow() {
        launch(AppDelegate::Window::show);
        QCOMPARE(mac->desktop.policies, (QList{Policy::accessory, Policy::regular}));
        QVERIFY(mac->quick() != nullptr);
    }

    void closingTheWindowLeavesTheDockAgain() {
        launch(AppDelegate::Window::show);
        mac->quick()->close();
        QCOMPARE(mac->desktop.policies.last(), Policy::accessory);
        delegate->showWindow();
        QCOMPARE(mac->desktop.policies.last(), Policy::regular);
        QVERIFY(mac->quick() != nullptr);
    }

    void reopeningShowsTheWindowButTheLaunchDoesNot() {
        launch(AppDelegate::Window::onFirstRun);
        Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive);
        QVERIFY(mac->quick() == nullptr);
        Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
        QVERIFY(mac->quick() == nullptr);
        Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive);
        QVERIFY(mac->quick() != nullptr);
    }

    void aWindowThatCannotBeMadeIsExplained() {
        mac->model->finishOnboarding(AppModel::Apply::no);
        delegate.emplace(*mac->model, mac->desktop, mac->images,
                         [](AppModel&, Kelvane::Desktop&, Kelvane::Images&) { return nullptr; });
        delegate->finishLaunching(AppDelegate::Window::show);
        QMessageBox* box = nullptr;
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (auto* candidate = qobject_cast<QMessageBox*>(widget); candidate != nullptr && candidate->isVisible())
                box = candidate;
        }
        QVERIFY(box != nullptr);
        QCOMPARE(box->text(), u"The window cannot be opened."_s);
        box->close();
        // The application goes on in the menu bar.
        QCOMPARE(mac->desktop.policies, QList{Policy::accessory});
    }

    void withoutAWindowToDrawTheEndComesAllTheSame() {
        qputenv("KELVANE_SHOTS", "/nowhere");
        const auto forget = qScopeGuard([] { qunsetenv("KELVANE_SHOTS"); });
        mac->model->finishOnboarding(AppModel::Apply::no);
        delegate.emplace(*mac->model, mac->desktop, mac->images,
                         [](AppModel&, Kelvane::Desktop&, Kelvane::Images&) { return nullptr; });
        QTimer::singleShot(0, this, [this] { delegate->finishLaunching(AppDelegate::Window::onFirstRun); });
        QCOMPARE(QApplication::exec(), 0);
    }

    void aboutIsTheSystemsPanelWhereItHasOne_data() {
        QTest::addColumn<bool>("hasPanel");
        QTest::addColumn<int>("panels");
        QTest::addColumn<QStringList>("boxes");
        QTest::newRow("the system's panel, and no box of ours") << true << 1 << QStringList();
        QTest::newRow("a box of ours, with the version")
            << false << 0 << QStringList{u"<b>Kelvane 1.2.3</b><p>Keeps the Dock in step with how you work.</p>"_s};
    }
    void aboutIsTheSystemsPanelWhereItHasOne() {
        QFETCH(bool, hasPanel);
        mac->desktop.hasAboutPanel = hasPanel;
        launch(AppDelegate::Window::show);
        QAction* about = menuItem(u"About Kelvane"_s);
        QVERIFY(about != nullptr);
        // A box keeps whoever opened it waiting until it is closed.
        QStringList boxes;
        bool hasLooked = false;
        QTimer::singleShot(0, this, [&] {
            for (QWidget* widget : QApplication::topLevelWidgets()) {
                if (auto* box = qobject_cast<QMessageBox*>(widget); box != nullptr && box->isVisible()) {
                    boxes.append(box->text());
                    box->close();
                }
            }
            hasLooked = true;
        });
        about->trigger();
        QVERIFY(QTest::qWaitFor([&] { return hasLooked; }));
        QTEST(mac->desktop.aboutPanels, "panels");
        QTEST(boxes, "boxes");
    }

private:
    /// The item of the main menu with this title; null when there is none.
    static QAction* menuItem(const QString& title) {
        for (QWidget* widget : QApplication::allWidgets()) {
            if (auto* menu = qobject_cast<QMenu*>(widget); menu != nullptr) {
                for (QAction* action : menu->actions()) {
                    if (action->text() == title)
                        return action;
                }
            }
        }
        return nullptr;
    }

    static std::unique_ptr<ApplicationWindow> makeWindow(AppModel& model, Kelvane::Desktop& desktop,
                                                         Kelvane::Images& images) {
        return std::make_unique<MainWindow>(model, desktop, images);
    }

    void launch(AppDelegate::Window window) {
        mac->model->finishOnboarding(AppModel::Apply::no);
        delegate.emplace(*mac->model, mac->desktop, mac->images, makeWindow);
        delegate->finishLaunching(window);
    }

    std::optional<WindowWorld> mac;
    std::optional<AppDelegate> delegate;
};

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    const QApplication application(argc, argv);
    QApplication::setApplicationVersion(u"1.2.3"_s);
    QApplication::setQuitOnLastWindowClosed(false);
    AppDelegateTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "AppDelegateTest.moc"
