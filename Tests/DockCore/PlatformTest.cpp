#include "DockCore/Platform.h"

#include "Support/ChildProcess.h"
#include "Support/FakePlatform.h"

#include <QTest>

using namespace DockCore;
using namespace Qt::StringLiterals;

class PlatformTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theOneInstalledLastIsTheCurrentOne() {
        const Fakes::World outer;
        const quint64 generation = Platform::generation();
        {
            const Fakes::World inner;
            QCOMPARE(&Platform::current().clock, &inner.clock);
            QVERIFY(Platform::generation() != generation);
        }
        QCOMPARE(&Platform::current().clock, &outer.clock);
    }

    void withoutOneTheProcessEnds() {
        if (ChildProcess::isChild()) {
            Platform::current();
            return;
        }
        const auto outcome = ChildProcess::run();
        QVERIFY2(outcome.crashed, qPrintable(outcome.output));
        QVERIFY2(outcome.output.contains(u"No platform is installed."), qPrintable(outcome.output));
    }
};

QTEST_GUILESS_MAIN(PlatformTest)
#include "PlatformTest.moc"
