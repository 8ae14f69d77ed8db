#include "Platform/MacOS/Clock.h"

#include <ctime>
#include <thread>

namespace MacOS {

QDateTime Clock::now() {
    return QDateTime::currentDateTimeUtc();
}

std::chrono::nanoseconds Clock::elapsed() {
    // Unlike the steady clock of the standard library, this one goes on while the machine sleeps.
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC_RAW, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

void Clock::sleep(std::chrono::milliseconds duration) {
    std::this_thread::sleep_for(duration);
}

} // namespace MacOS
