#include "Platform/Linux/LinuxClock.h"

#include "Platform/ClockContract.h"

#include <QFile>

using namespace Qt::StringLiterals;

class LinuxClockTest : public ClockContract {
    Q_OBJECT

    std::unique_ptr<DockCore::Clock> makeClock() override { return std::make_unique<Platform::LinuxClock>(); }

private Q_SLOTS:
    void thePresentMomentIsThatOfTheSystem() {
        const QDateTime before = QDateTime::currentDateTimeUtc();
        const QDateTime now = Platform::LinuxClock().now();
        QVERIFY(before <= now);
        QVERIFY(now <= QDateTime::currentDateTimeUtc());
    }

    void theTimeThatPassesCountsFromTheStartOfTheMachine() {
        // The kernel's own count includes the time asleep.
        QFile file(u"/proc/uptime"_s);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const double uptime = file.readAll().split(' ').value(0).toDouble();
        const double elapsed = std::chrono::duration<double>(Platform::LinuxClock().elapsed()).count();
        QVERIFY(std::abs(elapsed - uptime) < 5);
    }
};

QTEST_GUILESS_MAIN(LinuxClockTest)
#include "LinuxClockTest.moc"
