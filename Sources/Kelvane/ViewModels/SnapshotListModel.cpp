#include "Kelvane/ViewModels/SnapshotListModel.h"

#include "Kelvane/ViewModels/AppNames.h"
#include "Kelvane/ViewModels/SnapshotText.h"

using namespace DockCore;
using namespace Qt::StringLiterals;

namespace Kelvane {

void SnapshotListModel::setSnapshots(const QList<Snapshot>& snapshots, const QList<DockTile>& current,
                                     const AppNames& names, const QDateTime& now) {
    QList<SnapshotRow> list;
    for (const Snapshot& snapshot : snapshots) {
        SnapshotRow row;
        row.id = snapshot.id;
        row.reason = snapshot.reason;
        row.caption = SnapshotText::caption(snapshot, now);
        row.description = row.reason + u", "_s + row.caption;
        row.bundleIDs = snapshot.bundleIDs;
        row.icons = names.icons(snapshot.bundleIDs);
        row.names = names.names(snapshot.bundleIDs).join(u", "_s);
        row.changes = SnapshotText::changes(snapshot, current, names).join(u'\n');
        row.isOriginal = snapshot.isOriginal;
        row.isSameAsNow = SnapshotText::hasSameApps(snapshot, current);
        list += row;
    }
    setRows(list);
}

QHash<int, QByteArray> SnapshotListModel::roleNames() const {
    return {{idRole, "snapshotId"},           {reasonRole, "reason"},         {captionRole, "caption"},
            {descriptionRole, "description"}, {iconsRole, "icons"},           {namesRole, "names"},
            {changesRole, "changes"},         {isOriginalRole, "isOriginal"}, {isSameAsNowRole, "isSameAsNow"}};
}

QVariant SnapshotListModel::value(const SnapshotRow& row, int role) const {
    switch (role) {
    case idRole:
        return row.id;
    case Qt::DisplayRole:
    case reasonRole:
        return row.reason;
    case captionRole:
        return row.caption;
    case descriptionRole:
        return row.description;
    case iconsRole:
        return row.icons;
    case namesRole:
        return row.names;
    case changesRole:
        return row.changes;
    case isOriginalRole:
        return row.isOriginal;
    case isSameAsNowRole:
        return row.isSameAsNow;
    default:
        return {};
    }
}

} // namespace Kelvane
