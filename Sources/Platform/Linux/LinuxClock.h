#pragma once

#include "DockCore/Ports/Clock.h"

namespace Platform {

/// The system's clocks: the wall clock, and the time since the machine started with its sleep counted. Keeps nothing;
/// any thread may call it.
class LinuxClock final : public DockCore::Clock {
public:
    QDateTime now() override;
    std::chrono::nanoseconds elapsed() override;
    void sleep(std::chrono::milliseconds duration) override;
};

} // namespace Platform
