#include "Platform/Linux/Clock.h"

#include <ctime>
#include <thread>

namespace Linux {

QDateTime Clock::now() {
    return QDateTime::currentDateTimeUtc();
}

std::chrono::nanoseconds Clock::elapsed() {
    // Not CLOCK_MONOTONIC, which stands still while the machine sleeps.
    timespec time = {};
    clock_gettime(CLOCK_BOOTTIME, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

void Clock::sleep(std::chrono::milliseconds duration) {
    std::this_thread::sleep_for(duration);
}

} // namespace Linux
