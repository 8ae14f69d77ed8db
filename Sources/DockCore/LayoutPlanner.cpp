#include "DockCore/LayoutPlanner.h"

#include "DockCore/AppCatalog.h"

#include <QHash>
#include <QSet>

namespace DockCore {

QList<DockTile> LayoutPlanner::plan(const Profile& profile, const QList<AppScore>& ranking,
                                    const QList<DockTile>& current, AppCatalog& catalog) {
    QHash<QString, const DockTile*> existing;
    for (const DockTile& tile : current) {
        if (tile.bundleID && !existing.contains(*tile.bundleID))
            existing.insert(*tile.bundleID, &tile);
    }
    QSet<QString> taken(profile.excluded.begin(), profile.excluded.end());
    taken.unite(AppCatalog::ignored());

    const auto place = [&](const QString& bundleID, QList<DockTile>& group) {
        if (taken.contains(bundleID))
            return;
        if (const DockTile* tile = existing.value(bundleID))
            group.append(*tile);
        else if (const auto app = catalog.info(bundleID))
            group.append(DockTile::app(*app));
        else
            return;
        taken.insert(bundleID);
    };

    QList<DockTile> pinned;
    for (const QString& bundleID : profile.pinned)
        place(bundleID, pinned);
    QList<DockTile> used;
    for (const AppScore& score : ranking) {
        if (used.size() >= profile.adaptiveSlots)
            break;
        place(score.app.bundleID, used);
    }
    if (profile.separatePinned && !pinned.isEmpty() && !used.isEmpty())
        pinned.append(DockTile::smallSpacer(pinned.size()));
    return pinned + used;
}

} // namespace DockCore
