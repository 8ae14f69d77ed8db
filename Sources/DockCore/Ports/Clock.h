#pragma once

#include <QDateTime>

#include <chrono>

namespace DockCore {

/// The time of day, the time that passes, and waiting. Any thread may call it.
class Clock {
public:
    virtual ~Clock() = default;

    /// The present moment by the wall clock, which people and servers set forward and back.
    virtual QDateTime now() = 0;
    /// Time passed since some fixed moment, sleep of the machine included; it never goes back.
    virtual std::chrono::nanoseconds elapsed() = 0;
    /// Blocks the calling thread for `duration`.
    virtual void sleep(std::chrono::milliseconds duration) = 0;
};

} // namespace DockCore
