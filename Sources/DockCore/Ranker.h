#pragma once

#include "DockCore/AppInfo.h"
#include "DockCore/UsageWindow.h"

#include <QDateTime>
#include <QList>

#include <optional>

namespace DockCore {

class AppCatalog;
class Metadata;
class UsageStore;

/// One ranked application and what its score is made of. A plain value.
struct AppScore {
    AppInfo app;
    double seconds = 0;
    qint64 activations = 0;
    /// Days of the window on which the application has a record.
    qint64 trackedDays = 0;
    /// Days on which the operating system saw it opened; 0 when it was not asked.
    qint64 spotlightDays = 0;
    std::optional<QDateTime> lastUsed;
    /// The sum of the three parts below, in their order.
    double score = 0;
    double minutePoints = 0;
    double activationPoints = 0;
    double spotlightPoints = 0;
    bool operator==(const AppScore&) const = default;
};

/// Orders applications by use, best first. The same input gives the same output; the caller chooses the thread.
namespace Ranker {

/// Points for one day on which the operating system saw an application opened: 10 with no tracked day in the window,
/// falling to 0 when every day is tracked.
double spotlightWeight(int trackedDays, UsageWindow window);

/// Applications with a score above 0: a point a minute in front, two an activation, the Spotlight weight a day opened.
/// `spotlight` is the operating system's record; null leaves it out.
QList<AppScore> rank(const UsageStore& usage, UsageWindow window, AppCatalog& catalog, Metadata* spotlight,
                     const QDateTime& now);

} // namespace Ranker
} // namespace DockCore
