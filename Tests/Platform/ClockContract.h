#pragma once

#include "DockCore/Ports/Clock.h"

#include <QTest>

#include <memory>

/// What every adapter of the Clock port keeps to. A test class derives from it and says which clock it is.
class ClockContract : public QObject {
    Q_OBJECT

protected:
    virtual std::unique_ptr<DockCore::Clock> makeClock() = 0;

private Q_SLOTS:
    void thePresentMomentIsInUtc() {
        const auto clock = makeClock();
        QVERIFY(clock->now().isValid());
        QCOMPARE(clock->now().timeSpec(), Qt::UTC);
    }

    void thePresentMomentHasMilliseconds() {
        // One of several moments that are three milliseconds apart has some.
        const auto clock = makeClock();
        int withMilliseconds = 0;
        for (int turn = 0; turn < 5; ++turn) {
            withMilliseconds += clock->now().time().msec() != 0 ? 1 : 0;
            clock->sleep(std::chrono::milliseconds(3));
        }
        QVERIFY(withMilliseconds > 0);
    }

    void timeThatPassesNeverGoesBack() {
        const auto clock = makeClock();
        auto last = clock->elapsed();
        for (int turn = 0; turn < 1000; ++turn) {
            const auto next = clock->elapsed();
            QVERIFY(next >= last);
            last = next;
        }
    }

    void aSleepLastsAtLeastAsLongAsItWasAskedTo() {
        const auto clock = makeClock();
        const auto before = clock->elapsed();
        clock->sleep(std::chrono::milliseconds(5));
        QVERIFY(clock->elapsed() - before >= std::chrono::milliseconds(5));
    }

    void aSleepOfNothingReturns_data() {
        QTest::addColumn<int>("milliseconds");
        QTest::newRow("none") << 0;
        QTest::newRow("less than none") << -1000;
    }
    void aSleepOfNothingReturns() {
        QFETCH(int, milliseconds);
        const auto clock = makeClock();
        const auto before = clock->elapsed();
        clock->sleep(std::chrono::milliseconds(milliseconds));
        const auto passed = clock->elapsed() - before;
        QVERIFY(passed >= std::chrono::nanoseconds(0));
        QVERIFY(passed < std::chrono::seconds(1));
    }
};
