#include "Stopwatch.h"

#include <algorithm>
#include <ctime>

namespace {

double now(clockid_t clock) {
    timespec time = {};
    clock_gettime(clock, &time);
    return double(time.tv_sec) + double(time.tv_nsec) / 1e9;
}

double seconds(Stopwatch::Time time, const std::function<void()>& work) {
    const clockid_t clock = time == Stopwatch::Time::processor ? CLOCK_PROCESS_CPUTIME_ID : CLOCK_MONOTONIC;
    const double start = now(clock);
    work();
    return now(clock) - start;
}

} // namespace

double Stopwatch::middle(std::vector<double> values) {
    const auto half = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), half, values.end());
    return *half;
}

Stopwatch::Pair Stopwatch::medians(Time time, int runs, const std::function<void()>& work,
                                   const std::function<void()>& floor, const std::function<void()>& prepare) {
    std::vector<double> times;
    std::vector<double> floorTimes;
    for (int run = 0; run <= runs; ++run) {
        if (prepare) {
            prepare();
        }
        const double workTime = seconds(time, work);
        const double floorTime = seconds(time, floor);
        if (run > 0) {
            times.push_back(workTime);
            floorTimes.push_back(floorTime);
        }
    }
    return {.measured = middle(times), .floor = middle(floorTimes)};
}
