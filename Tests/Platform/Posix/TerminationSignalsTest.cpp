#include "Platform/Posix/TerminationSignals.h"

#include <QSignalSpy>
#include <QTest>

#include <csignal>

using Platform::TerminationSignals;

class TerminationSignalsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void eachSignalArrives_data();
    void eachSignalArrives();
    void aSignalBeforeTheEventLoopIsNotLost();
    void manySignalsDoNotBlock();
    void anIgnoredSignalStaysIgnored();
    void theFormerHandlingComesBack();
};

void TerminationSignalsTest::eachSignalArrives_data() {
    QTest::addColumn<int>("signal");
    QTest::newRow("the session manager asks to end") << SIGTERM;
    QTest::newRow("a person presses Control-C") << SIGINT;
    QTest::newRow("the terminal has gone") << SIGHUP;
}

void TerminationSignalsTest::eachSignalArrives() {
    QFETCH(int, signal);
    const TerminationSignals signals;
    QSignalSpy spy(&signals, &TerminationSignals::received);
    QCOMPARE(raise(signal), 0);
    QVERIFY(spy.wait());
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.constFirst().constFirst().toInt(), signal);
}

void TerminationSignalsTest::aSignalBeforeTheEventLoopIsNotLost() {
    const TerminationSignals signals;
    raise(SIGTERM);
    QSignalSpy spy(&signals, &TerminationSignals::received);
    QTRY_COMPARE(spy.count(), 1);
}

void TerminationSignalsTest::manySignalsDoNotBlock() {
    const TerminationSignals signals;
    QSignalSpy spy(&signals, &TerminationSignals::received);
    // More than any pipe holds.
    for (int i = 0; i < 300'000; ++i)
        raise(SIGTERM);
    QTRY_VERIFY(!spy.isEmpty());
}

void TerminationSignalsTest::anIgnoredSignalStaysIgnored() {
    const auto former = std::signal(SIGHUP, SIG_IGN);
    {
        const TerminationSignals signals;
        QSignalSpy spy(&signals, &TerminationSignals::received);
        raise(SIGHUP);
        raise(SIGTERM);
        QTRY_COMPARE(spy.count(), 1);
        QCOMPARE(spy.constFirst().constFirst().toInt(), SIGTERM);
    }
    std::signal(SIGHUP, former);
}

void TerminationSignalsTest::theFormerHandlingComesBack() {
    struct sigaction before = {};
    sigaction(SIGINT, nullptr, &before);
    {
        const TerminationSignals signals;
        struct sigaction during = {};
        sigaction(SIGINT, nullptr, &during);
        QVERIFY(during.sa_handler != before.sa_handler);
    }
    struct sigaction after = {};
    sigaction(SIGINT, nullptr, &after);
    QVERIFY(after.sa_handler == before.sa_handler);
}

QTEST_GUILESS_MAIN(TerminationSignalsTest)
#include "TerminationSignalsTest.moc"
