#include "Platform/MacOS/MacOSClock.h"

#include <ctime>
#include <thread>

namespace Platform {

QDateTime MacOSClock::now() {
    return QDateTime::currentDateTimeUtc();
}

std::chrono::nanoseconds MacOSClock::elapsed() {
    // Unlike the steady clock of the standard library, this one goes on while the machine sleeps.
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC_RAW, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

void MacOSClock::sleep(std::chrono::milliseconds duration) {
    std::this_thread::sleep_for(duration);
}

} // namespace Platform
