#include "Platform/MacOS/Clock.h"

#include "Platform/ClockContract.h"

class MacOSClockTest : public ClockContract {
    Q_OBJECT

    std::unique_ptr<DockCore::Clock> makeClock() override { return std::make_unique<MacOS::Clock>(); }
};

QTEST_GUILESS_MAIN(MacOSClockTest)
#include "ClockTest.moc"
