#include "Kelvane/Shell/AppDelegate.h"

#include "Support/WindowWorld.h"

#include <QApplication>
#include <QTest>

using namespace Kelvane;
using namespace Fakes;
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
        delegate.emplace(*mac->model, mac->desktop, mac->images);
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

private:
    void launch(AppDelegate::Window window) {
        mac->model->finishOnboarding(AppModel::Apply::no);
        delegate.emplace(*mac->model, mac->desktop, mac->images);
        delegate->finishLaunching(window);
    }

    std::optional<WindowWorld> mac;
    std::optional<AppDelegate> delegate;
};

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    AppDelegateTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "AppDelegateTest.moc"
