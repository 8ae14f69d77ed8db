#pragma once

#include "DockCore/Ranker.h"
#include "DockCore/UsageWindow.h"

#include <QDateTime>
#include <QString>

#include <optional>

namespace Kelvane {

/// The sentences of the usage pane. The same input gives the same text; dates are written in the system's time zone.
namespace UsageText {

/// "under a minute", "5m", "2h 5m"; whole minutes, the rest is dropped.
QString duration(double seconds);
/// The usage of one application, as "2h 5m active · 3 switches · 4 of 7 days"; parts that do not apply are left
/// out.
QString detail(const DockCore::AppScore& score, DockCore::UsageWindow window);
/// Since when usage is counted, or what stands in until it is.
QString subtitle(const std::optional<QDateTime>& trackingSince);
/// Where the points of a score come from, as "571 points: 564 for time active (1 a minute), 7 for …".
QString reason(const DockCore::AppScore& score);

} // namespace UsageText
} // namespace Kelvane
