#include "Platform/Linux/LinuxClock.h"

#include <ctime>
#include <thread>

namespace Platform {

QDateTime LinuxClock::now() {
    return QDateTime::currentDateTimeUtc();
}

std::chrono::nanoseconds LinuxClock::elapsed() {
    // Not CLOCK_MONOTONIC, which stands still while the machine sleeps.
    timespec time = {};
    clock_gettime(CLOCK_BOOTTIME, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

void LinuxClock::sleep(std::chrono::milliseconds duration) {
    std::this_thread::sleep_for(duration);
}

} // namespace Platform
