#pragma once

#include <functional>
#include <vector>

/// Measures in seconds. Single runs on a busy machine vary, so all that is reported are medians.
namespace Stopwatch {

struct Pair {
    double measured = 0;
    double floor = 0;
};

/// What is counted. Work that waits for nothing is counted in processor time, which other programs do not lengthen.
enum class Time { passed, processor };

/// The median times of `runs` runs of each after one to warm up. They are taken in turns, so that both meet the same
/// moods of the machine; before each turn comes an unmeasured `prepare`.
Pair medians(Time time, int runs, const std::function<void()>& work, const std::function<void()>& floor,
             const std::function<void()>& prepare = {});
double middle(std::vector<double> values);

} // namespace Stopwatch
