#include "DockCore/Services.h"

#include "Support/ChildProcess.h"
#include "Support/FakeServices.h"

#include <QTest>

using namespace DockCore;
using namespace Qt::StringLiterals;

class ServicesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theOneInstalledLastIsTheCurrentOne() {
        const Fakes::World outer;
        const quint64 generation = Services::generation();
        {
            const Fakes::World inner;
            QCOMPARE(&Services::current().clock, &inner.clock);
            QVERIFY(Services::generation() != generation);
        }
        QCOMPARE(&Services::current().clock, &outer.clock);
    }

    void withoutOneTheProcessEnds() {
        if (ChildProcess::isChild()) {
            Services::current();
            return;
        }
        const auto outcome = ChildProcess::run();
        QVERIFY2(outcome.crashed, qPrintable(outcome.output));
        QVERIFY2(outcome.output.contains(u"No platform is installed."), qPrintable(outcome.output));
    }
};

QTEST_GUILESS_MAIN(ServicesTest)
#include "ServicesTest.moc"
