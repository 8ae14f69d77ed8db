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
        mac.model->applyActive(AppModel::Voice::silent);
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
