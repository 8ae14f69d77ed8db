#include "Kelvane/ViewModels/SnapshotText.h"

#include "DockCore/DockDiff.h"
#include "Kelvane/ViewModels/AppNames.h"
#include "Kelvane/ViewModels/DateText.h"

using namespace DockCore;
using namespace Qt::StringLiterals;

namespace Kelvane::SnapshotText {

namespace {

/// Enough of a tile for comparing layouts.
QList<DockTile> tiles(const QStringList& bundleIDs) {
    QList<DockTile> result;
    for (const QString& bundleID : bundleIDs) {
        DockTile tile;
        tile.kind = DockTile::Kind::app;
        tile.bundleID = bundleID;
        result += tile;
    }
    return result;
}

} // namespace

QString caption(const Snapshot& snapshot, const QDateTime& now) {
    return DateText::moment(snapshot.date, now) + u" · "_s + QString::number(snapshot.bundleIDs.size()) + u" apps"_s;
}

QStringList changes(const Snapshot& snapshot, const QList<DockTile>& current, const AppNames& names) {
    const DockDiff diff(current, tiles(snapshot.bundleIDs));
    QStringList lines;
    const auto addLine = [&lines, &names](const QString& label, const QStringList& bundleIDs) {
        if (!bundleIDs.isEmpty())
            lines += label + names.names(bundleIDs).join(u", "_s);
    };
    addLine(u"Comes back: "_s, diff.added);
    addLine(u"Leaves: "_s, diff.removed);
    addLine(u"Moves: "_s, diff.moved);
    if (!lines.isEmpty())
        return lines;
    return {snapshot.signature == layoutSignature(current) ? u"Restoring it would change nothing."_s
                                                           : u"The apps stay. Only spacers and other items change."_s};
}

bool hasSameApps(const Snapshot& snapshot, const QList<DockTile>& current) {
    QStringList present;
    for (const DockTile& tile : current) {
        if (tile.bundleID)
            present += *tile.bundleID;
    }
    return snapshot.bundleIDs == present;
}

} // namespace Kelvane::SnapshotText
