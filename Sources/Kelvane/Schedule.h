#pragma once

#include "DockCore/Settings.h"

#include <QStringList>

#include <chrono>
#include <optional>

namespace Kelvane {

/// When the active profile is applied without being asked for. Pure: the same input gives the same answer.
namespace Schedule {

using Seconds = std::chrono::duration<double>;

/// Period of the check, and how far the timer may deviate from it to coincide with others.
inline constexpr std::chrono::seconds checkInterval{120};

/// An update is due: updates are on and not paused, a profile was applied before, and the interval has passed.
/// `sinceApplied` is absent where the time of the last apply is unknown; then the interval does not count.
bool isDue(const DockCore::AppSettings& settings, std::optional<Seconds> sinceApplied);

/// The user has made no input for long enough that the Dock may change; unknown idle time counts as input.
bool isIdle(std::optional<Seconds> sinceLastInput);

/// The Dock's layout is not the one last applied, so somebody else changed it and automatic updates have to pause.
bool isChangedByHand(const DockCore::AppSettings& settings, const QStringList& signature);

} // namespace Schedule
} // namespace Kelvane
