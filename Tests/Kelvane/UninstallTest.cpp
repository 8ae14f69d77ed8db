#include "Kelvane/Uninstall.h"

#include "DockCore/Storage/Paths.h"
#include "Support/FakeLoginItem.h"
#include "Support/FakeServices.h"

#include <QTest>
#include <QTextStream>

using namespace Qt::StringLiterals;

class UninstallTest : public QObject {
    Q_OBJECT

    struct Result {
        int status;
        QString text;
    };
    static Result run(Fakes::World& world, Fakes::LoginItem& loginItem) {
        QString text;
        QTextStream output(&text);
        const int status = Kelvane::Uninstall::run(loginItem, world.paths(), output);
        output.flush();
        return {status, text};
    }

private Q_SLOTS:
    void theLoginItemIsRemoved() {
        Fakes::World world;
        Fakes::LoginItem loginItem;
        loginItem.enabled = true;
        const Result result = run(world, loginItem);
        QCOMPARE(result.status, 0);
        QVERIFY(!loginItem.enabled);
        QVERIFY(result.text.startsWith(u"Kelvane no longer opens at login.\n"_s));
    }

    void withoutALoginItemThereIsNothingToRemove() {
        Fakes::World world;
        Fakes::LoginItem loginItem;
        loginItem.refusal = u"not asked"_s;
        const Result result = run(world, loginItem);
        QCOMPARE(result.status, 0);
        QVERIFY(result.text.startsWith(u"Kelvane does not open at login.\n"_s));
    }

    void aRefusalIsToldWithItsReason() {
        Fakes::World world;
        Fakes::LoginItem loginItem;
        loginItem.enabled = true;
        loginItem.refusal = u"Operation not permitted"_s;
        const Result result = run(world, loginItem);
        QCOMPARE(result.status, 1);
        QVERIFY(loginItem.enabled);
        QVERIFY(result.text.startsWith(u"Kelvane still opens at login: Operation not permitted\n"_s));
    }

    void whatIsLeftIsNamedAndLeft() {
        Fakes::World world;
        Fakes::LoginItem loginItem;
        QVERIFY(run(world, loginItem).text.contains(world.paths().support()));
        QVERIFY(QDir(world.paths().support()).exists());
    }
};

QTEST_GUILESS_MAIN(UninstallTest)
#include "UninstallTest.moc"
