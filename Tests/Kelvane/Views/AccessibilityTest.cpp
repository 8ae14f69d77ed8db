#include "WindowTest.h"

using namespace Kelvane;
using namespace Fakes;
using namespace Qt::StringLiterals;

/// Walks what a screen reader sees: no control without a name, none named as another of its group.
class AccessibilityTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyControlHasANameOfItsOwn_data() {
        QTest::addColumn<int>("pane");
        QTest::addColumn<int>("step");
        QTest::newRow("the usage pane") << static_cast<int>(Pane::usage) << -1;
        QTest::newRow("the profiles pane") << static_cast<int>(Pane::profiles) << -1;
        QTest::newRow("the history pane") << static_cast<int>(Pane::history) << -1;
        QTest::newRow("the settings pane") << static_cast<int>(Pane::settings) << -1;
        QTest::newRow("the welcome step") << 0 << 0;
        QTest::newRow("the choose step") << 0 << 1;
        QTest::newRow("the safety step") << 0 << 2;
    }
    void everyControlHasANameOfItsOwn() {
        QFETCH(int, pane);
        QFETCH(int, step);
        WindowWorld mac;
        pinActive(*mac.model, {u"Mail"_s, u"Notes"_s});
        mac.model->applyActive(AppModel::Notify::failuresOnly);
        QVERIFY(mac.waitForChange());
        if (step >= 0) {
            mac.model->setOnboardingStep(step);
            mac.show();
        } else {
            mac.open(static_cast<Pane>(pane));
        }
        QStringList faults;
        int controls = 0;
        walk(QAccessible::queryAccessibleInterface(mac.quick()), faults, controls);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
        QVERIFY(controls > 0);
    }

    void everyChoiceSaysItsKindAndWhetherItIsMade_data() {
        QTest::addColumn<int>("pane");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QAccessible::Role>("role");
        QTest::addColumn<bool>("made");
        QTest::newRow("the pane that shows")
            << static_cast<int>(Pane::usage) << u"Usage"_s << QAccessible::PageTab << true;
        QTest::newRow("another pane") << static_cast<int>(Pane::usage) << u"Dock"_s << QAccessible::PageTab << false;
        QTest::newRow("the window that is listed")
            << static_cast<int>(Pane::usage) << u"Last 7 days"_s << QAccessible::RadioButton << true;
        QTest::newRow("the other window")
            << static_cast<int>(Pane::usage) << u"Last 30 days"_s << QAccessible::RadioButton << false;
        QTest::newRow("the profile's symbol")
            << static_cast<int>(Pane::profiles) << u"sparkles"_s << QAccessible::RadioButton << true;
        QTest::newRow("another symbol") << static_cast<int>(Pane::profiles) << u"house"_s << QAccessible::RadioButton
                                        << false;
        QTest::newRow("the profile that is edited")
            << static_cast<int>(Pane::profiles) << u"Everyday"_s << QAccessible::ListItem << true;
        QTest::newRow("another profile") << static_cast<int>(Pane::profiles) << u"Coding"_s << QAccessible::ListItem
                                         << false;
    }
    void everyChoiceSaysItsKindAndWhetherItIsMade() {
        QFETCH(int, pane);
        QFETCH(QString, name);
        WindowWorld mac;
        mac.open(static_cast<Pane>(pane));
        QQuickItem* item = mac.find(name);
        QVERIFY(item != nullptr);
        const QAccessibleInterface* choice = QAccessible::queryAccessibleInterface(item);
        QTEST(choice->role(), "role");
        QTEST(choice->state().checked || choice->state().selected, "made");
    }

    void aMenuSaysWhichOfItsChoicesIsMade() {
        WindowWorld mac;
        mac.open(Pane::settings);
        mac.click(u"Reorganize automatically"_s);
        for (const QString& name : {u"Once a day"_s, u"Every hour"_s}) {
            QQuickItem* item = mac.find(name);
            QVERIFY2(item != nullptr, qPrintable(name));
            const QAccessibleInterface* choice = QAccessible::queryAccessibleInterface(item);
            QCOMPARE(choice->role(), QAccessible::MenuItem);
            QCOMPARE(bool(choice->state().checked), name == u"Once a day");
        }
    }

private:
    static bool isControl(QAccessible::Role role) {
        static const QSet<QAccessible::Role> roles = {
            QAccessible::PushButton,   QAccessible::CheckBox,   QAccessible::RadioButton, QAccessible::ComboBox,
            QAccessible::EditableText, QAccessible::SpinBox,    QAccessible::ListItem,    QAccessible::List,
            QAccessible::PageTab,      QAccessible::ButtonMenu, QAccessible::MenuItem};
        return roles.contains(role);
    }
    static void walk(QAccessibleInterface* node, QStringList& faults, int& controls) {
        if (node == nullptr || node->state().invisible)
            return;
        QSet<QString> names;
        for (int i = 0; i < node->childCount(); ++i) {
            QAccessibleInterface* child = node->child(i);
            if (child == nullptr || child->state().invisible)
                continue;
            const QString name = child->text(QAccessible::Name);
            if (isControl(child->role())) {
                ++controls;
                if (name.isEmpty())
                    faults += u"a %1 without a name in “%2”"_s.arg(child->role()).arg(node->text(QAccessible::Name));
                else if (names.contains(name))
                    faults += u"two controls named “%1” in “%2”"_s.arg(name, node->text(QAccessible::Name));
                names += name;
            } else if (child->state().focusable && child->role() == QAccessible::NoRole) {
                faults += u"something without a role takes the keys in “%1”"_s.arg(node->text(QAccessible::Name));
            }
            walk(child, faults, controls);
        }
    }
};

int main(int argc, char** argv) {
    return runWindowTest<AccessibilityTest>(argc, argv);
}
#include "AccessibilityTest.moc"
