#include "Platform/MacOS/InputIdleTime.h"

#include <CoreGraphics/CoreGraphics.h>

#include <cmath>

namespace Platform {

std::optional<std::chrono::duration<double>> inputIdleTime() {
    const double seconds =
        CGEventSourceSecondsSinceLastEventType(kCGEventSourceStateCombinedSessionState, kCGAnyInputEventType);
    // Right after the session starts the answer can be the largest time the system can count, some 580 years.
    constexpr double longestPlausible = 10.0 * 366 * 24 * 3600;
    if (!std::isfinite(seconds) || seconds < 0 || seconds > longestPlausible)
        return std::nullopt;
    return std::chrono::duration<double>(seconds);
}

} // namespace Platform
