#pragma once

#include "DockCore/UsageWindow.h"

#include <QDateTime>
#include <QString>

#include <optional>

namespace DockCore {

class Metadata;

/// What the operating system itself knows of an application's use. Keeps nothing; any thread may call it.
namespace SpotlightUsage {

struct Result {
    /// Distinct local days of use from the same time of day `window` days ago up to and past `now`.
    qint64 daysUsed = 0;
    std::optional<QDateTime> lastUsed;
    bool operator==(const Result&) const = default;
};

/// Never fails: what is not known is 0 days and no date.
Result lookup(Metadata& metadata, const QString& path, UsageWindow window, const QDateTime& now);

} // namespace SpotlightUsage
} // namespace DockCore
