#include "WindowTest.h"

using namespace DockCore;
using namespace Kelvane;
using namespace Fakes;
using namespace Qt::StringLiterals;

/// The first run in the real window, with the pointer and without.
class FirstRunTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        mac.emplace();
        pinActive(*mac->model, {u"Books"_s, u"Chess"_s});
        mac->show();
    }
    void cleanup() { mac.reset(); }

    void fromStartToAnAppliedDock() {
        QVERIFY(mac->find(u"A Dock that keeps up with you"_s) != nullptr);
        QVERIFY(mac->find(u"Back"_s) == nullptr);
        next(u"Continue"_s);
        QVERIFY(mac->find(u"Where should we start?"_s) != nullptr);
        const Profile other = mac->model->profiles()[2];
        mac->click(other.name);
        QCOMPARE(mac->world.profileStore().settings.activeProfileID, std::optional(other.id));
        mac->click(u"Work"_s);
        next(u"Continue"_s);
        QVERIFY(mac->find(u"Your Dock is safe"_s) != nullptr);
        mac->click(u"Open at login (recommended, so usage is counted)"_s);
        QVERIFY(mac->login.enabled);
        QVERIFY(!mac->world.profileStore().settings.onboarded);
        mac->click(u"Apply to My Dock"_s);
        QVERIFY(mac->waitForChange());
        QCOMPARE(mac->world.dock(), QStringList({u"Books"_s, u"Chess"_s}));
        QVERIFY(mac->world.profileStore().settings.onboarded);
        QTRY_VERIFY(mac->find(u"Your Dock"_s) != nullptr);
    }

    void backGoesBack() {
        next(u"Continue"_s);
        next(u"Back"_s);
        QVERIFY(mac->find(u"A Dock that keeps up with you"_s) != nullptr);
    }

    void notNowLeavesTheDock() {
        const QStringList before = mac->world.dock();
        next(u"Continue"_s);
        next(u"Continue"_s);
        mac->click(u"Not Now"_s);
        QVERIFY(mac->world.profileStore().settings.onboarded);
        QCOMPARE(mac->world.dock(), before);
        QVERIFY(!mac->model->isWorking());
    }

    void closingInTheMiddleComesBackAtTheNextLaunch() {
        next(u"Continue"_s);
        mac->window->close();
        QVERIFY(!mac->world.profileStore().settings.onboarded);
    }

    void theKeyboardAloneIsEnough() {
        QCOMPARE(mac->focused(), u"Continue"_s);
        mac->press(Qt::Key_Return);
        settle();
        const Profile other = mac->model->profiles()[2];
        mac->tabTo(other.name);
        mac->press(Qt::Key_Space);
        QCOMPARE(mac->model->activeProfile().id, other.id);
        mac->tabTo(u"Work"_s);
        mac->press(Qt::Key_Space);
        mac->tabTo(u"Continue"_s);
        mac->press(Qt::Key_Return);
        settle();
        mac->tabTo(u"Open at login (recommended, so usage is counted)"_s);
        mac->press(Qt::Key_Space);
        QVERIFY(mac->login.enabled);
        mac->tabTo(u"Apply to My Dock"_s);
        mac->press(Qt::Key_Return);
        QVERIFY(mac->waitForChange());
        QCOMPARE(mac->world.dock(), QStringList({u"Books"_s, u"Chess"_s}));
    }

private:
    /// The old step fades out, the new one in.
    static void settle() { QTest::qWait(400); }
    void next(const QString& button) {
        mac->click(button);
        settle();
    }

    std::optional<WindowWorld> mac;
};

int main(int argc, char** argv) {
    return runWindowTest<FirstRunTest>(argc, argv);
}
#include "FirstRunTest.moc"
