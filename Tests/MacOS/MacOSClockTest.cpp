#include "Platform/MacOS/MacOSClock.h"

#include "Platform/ClockContract.h"

class MacOSClockTest : public ClockContract {
    Q_OBJECT

    std::unique_ptr<DockCore::Clock> makeClock() override { return std::make_unique<Platform::MacOSClock>(); }
};

QTEST_GUILESS_MAIN(MacOSClockTest)
#include "MacOSClockTest.moc"
