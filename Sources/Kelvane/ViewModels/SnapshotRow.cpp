#include "Kelvane/ViewModels/SnapshotRow.h"

#include "DockCore/DockDiff.h"
#include "Kelvane/Counted.h"
#include "Kelvane/ViewModels/AppNames.h"
#include "Kelvane/ViewModels/DateText.h"

using namespace DockCore;
using namespace Qt::StringLiterals;

namespace Kelvane {

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

QString changes(const Snapshot& snapshot, const QList<DockTile>& current, const AppNames& names) {
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
        return lines.join(u'\n');
    return snapshot.signature == layoutSignature(current) ? u"Restoring it would change nothing."_s
                                                          : u"The apps stay. Only spacers and other items change."_s;
}

} // namespace

SnapshotRow SnapshotRow::of(const Snapshot& snapshot, const QList<DockTile>& current, const AppNames& names,
                            const QDateTime& now) {
    SnapshotRow row;
    row.snapshotId = snapshot.id;
    row.reason = snapshot.reason;
    row.caption = DateText::moment(snapshot.date, now) + u" · "_s + counted(snapshot.bundleIDs.size(), u"app"_s);
    row.icons = names.icons(snapshot.bundleIDs);
    row.names = names.names(snapshot.bundleIDs).join(u", "_s);
    row.changes = Kelvane::changes(snapshot, current, names);
    row.isOriginal = snapshot.isOriginal;
    row.isSameAsNow = snapshot.bundleIDs == bundleIDs(current);
    return row;
}

} // namespace Kelvane
