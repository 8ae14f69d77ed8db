#include "DockCore/SpotlightUsage.h"

#include "DockCore/Ports/Metadata.h"

#include <QSet>

#include <algorithm>

namespace DockCore {

SpotlightUsage::Result SpotlightUsage::lookup(Metadata& metadata, const QString& path, UsageWindow window,
                                              const QDateTime& now) {
    const std::optional<Metadata::Item> item = metadata.item(path);
    if (!item)
        return {};
    // The same time of day by the local calendar, so that a span over a clock change is an hour shorter or longer.
    const QDateTime earlier = now.toLocalTime().addDays(-days(window));
    const QDateTime cutoff = earlier.isValid() ? earlier : now;

    const QList<QDateTime> used = item->usedDates.value_or(QList<QDateTime>());
    QSet<qint64> daysUsed;
    for (const QDateTime& moment : used) {
        if (moment >= cutoff)
            daysUsed.insert(moment.toLocalTime().date().toJulianDay());
    }
    std::optional<QDateTime> lastUsed = item->lastUsedDate;
    if (!lastUsed && !used.isEmpty())
        lastUsed = *std::max_element(used.begin(), used.end());
    return {daysUsed.size(), lastUsed};
}

} // namespace DockCore
