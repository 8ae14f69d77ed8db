#include "Platform/SelfTest.h"
#include "Platform/SelfTestReport.h"

#include <QTest>

using namespace Qt::StringLiterals;
using Platform::SelfTestReport;
using Verdict = SelfTestReport::Verdict;

/// The table of the self-test, and the self-test of the machine that the tests run on.
class SelfTestTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theTableIsAligned();
    void oneFailureFailsTheWhole();
    void whatIsOnlyToldCannotFail();
    void thisMachinePasses();
};

void SelfTestTest::theTableIsAligned() {
    SelfTestReport report;
    report.check(true, u"short"_s, u"one"_s);
    report.check(false, u"a longer subject"_s, u"two"_s);
    report.add(Verdict::told, u"bare"_s);
    QCOMPARE(report.text(), u"ok      short             one\n"
                            "FAILED  a longer subject  two\n"
                            "-       bare\n"
                            "1 ok, 1 failed\n"_s);
}

void SelfTestTest::oneFailureFailsTheWhole() {
    SelfTestReport report;
    report.check(true, u"first"_s);
    QVERIFY(!report.hasFailed());
    report.check(false, u"second"_s);
    report.check(true, u"third"_s);
    QVERIFY(report.hasFailed());
}

void SelfTestTest::whatIsOnlyToldCannotFail() {
    SelfTestReport report;
    report.add(Verdict::told, u"Session bus"_s, u"none"_s);
    QVERIFY(!report.hasFailed());
}

void SelfTestTest::thisMachinePasses() {
    QCOMPARE(Platform::runSelfTest(), 0);
}

QTEST_GUILESS_MAIN(SelfTestTest)
#include "SelfTestTest.moc"
