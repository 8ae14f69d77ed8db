#pragma once

#include <chrono>
#include <optional>

namespace Platform {

/// Time since the user's last input of any kind in this session; nothing while the system does not know it yet.
/// Any thread.
std::optional<std::chrono::duration<double>> inputIdleTime();

} // namespace Platform
