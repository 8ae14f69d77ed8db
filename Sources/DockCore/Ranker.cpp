#include "DockCore/Ranker.h"

#include "DockCore/AppCatalog.h"
#include "DockCore/SpotlightUsage.h"
#include "DockCore/UsageStore.h"

#include <QHash>
#include <QMap>

#include <algorithm>
#include <vector>

namespace DockCore {

namespace {
constexpr double pointsAMinute = 1;
constexpr double pointsAnActivation = 2;
constexpr double mostPointsASpotlightDay = 10;

/// A score and the name to order it by where scores are equal.
struct Entry {
    AppScore score;
    /// UTF-8 of the canonical form: its bytes are in the order of the code points.
    QByteArray name;
};

/// By the identifier they are counted under, which need not be spelt like the bundle's own. The order of the map lets
/// what ties in everything still come out the same every time.
QMap<QString, AppInfo> candidates(const QHash<QString, UsageTotals>& totals, AppCatalog& catalog, double weight) {
    QMap<QString, AppInfo> found;
    for (auto total = totals.cbegin(); total != totals.cend(); ++total) {
        if (const auto app = catalog.info(total.key()))
            found.insert(total.key(), *app);
    }
    if (weight > 0) {
        // What was never tracked can still have been opened.
        const QList<AppInfo> installed = catalog.installedApps();
        for (const AppInfo& app : installed) {
            if (!found.contains(app.bundleID))
                found.insert(app.bundleID, app);
        }
    }
    return found;
}
} // namespace

double Ranker::spotlightWeight(int trackedDays, UsageWindow window) {
    const double untracked = 1 - static_cast<double>(trackedDays) / days(window);
    return untracked >= 0 ? untracked * mostPointsASpotlightDay : 0;
}

QList<AppScore> Ranker::rank(const UsageStore& usage, UsageWindow window, AppCatalog& catalog, Metadata* spotlight,
                             const QDateTime& now) {
    const QHash<QString, UsageTotals> totals = usage.totals(window, now);
    const double weight = spotlight != nullptr ? spotlightWeight(usage.trackedDays(window, now), window) : 0;

    std::vector<Entry> entries;
    const QMap<QString, AppInfo> apps = candidates(totals, catalog, weight);
    for (auto candidate = apps.cbegin(); candidate != apps.cend(); ++candidate) {
        if (AppCatalog::ignored().contains(candidate.key()))
            continue;
        const AppInfo& app = candidate.value();
        const UsageTotals total = totals.value(candidate.key());
        const SpotlightUsage::Result opened =
            weight > 0 ? SpotlightUsage::lookup(*spotlight, app.path, window, now) : SpotlightUsage::Result();
        const double minutePoints = total.seconds / 60 * pointsAMinute;
        const double activationPoints = pointsAnActivation * static_cast<double>(total.activations);
        const double spotlightPoints = weight * static_cast<double>(opened.daysUsed);
        const double score = minutePoints + activationPoints + spotlightPoints;
        if (!(score > 0))
            continue;
        entries.push_back({{app, total.seconds, total.activations, total.activeDays, opened.daysUsed, opened.lastUsed,
                            score, minutePoints, activationPoints, spotlightPoints},
                           app.name.normalized(QString::NormalizationForm_C).toUtf8()});
    }
    std::stable_sort(entries.begin(), entries.end(), [](const Entry& left, const Entry& right) {
        return left.score.score == right.score.score ? left.name < right.name : left.score.score > right.score.score;
    });

    QList<AppScore> ranking;
    ranking.reserve(static_cast<qsizetype>(entries.size()));
    for (Entry& entry : entries)
        ranking.append(std::move(entry.score));
    return ranking;
}

} // namespace DockCore
