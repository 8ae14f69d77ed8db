#pragma once

#include "DockCore/DockTile.h"
#include "DockCore/SnapshotStore.h"
#include "Kelvane/ViewModels/RowListModel.h"

#include <QDateTime>

namespace Kelvane {

class AppNames;

/// One saved Dock as the history pane shows it.
struct SnapshotRow {
    QString id;
    QString reason;
    /// When it was saved and how many applications it holds.
    QString caption;
    /// Tells rows of the same reason apart when they are read out.
    QString description;
    QStringList bundleIDs;
    /// The sources of their icons.
    QStringList icons;
    QString names;
    /// What restoring it would change, line by line.
    QString changes;
    bool isOriginal = false;
    bool isSameAsNow = false;

    bool operator==(const SnapshotRow&) const = default;
    QString key() const { return id; }
};

/// Saved Docks, newest first as the store lists them.
class SnapshotListModel : public RowListModel<SnapshotRow> {
    Q_OBJECT

public:
    enum Role {
        idRole = Qt::UserRole + 1,
        reasonRole,
        captionRole,
        descriptionRole,
        iconsRole,
        namesRole,
        changesRole,
        isOriginalRole,
        isSameAsNowRole
    };

    using RowListModel::RowListModel;

    void setSnapshots(const QList<DockCore::Snapshot>& snapshots, const QList<DockCore::DockTile>& current,
                      const AppNames& names, const QDateTime& now);
    QHash<int, QByteArray> roleNames() const override;

protected:
    QVariant value(const SnapshotRow& row, int role) const override;
};

} // namespace Kelvane
