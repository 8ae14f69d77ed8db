#pragma once

#include "DockCore/Ports/Clock.h"

namespace Platform {

/// The system's clocks. Any thread may call it.
class MacOSClock final : public DockCore::Clock {
public:
    QDateTime now() override;
    std::chrono::nanoseconds elapsed() override;
    void sleep(std::chrono::milliseconds duration) override;
};

} // namespace Platform
