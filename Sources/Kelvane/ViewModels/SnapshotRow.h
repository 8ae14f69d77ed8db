#pragma once

#include "DockCore/DockTile.h"
#include "DockCore/SnapshotStore.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QStringList>

namespace Kelvane {

class AppNames;

/// One saved Dock as the history pane shows it. A plain value.
struct SnapshotRow {
    Q_GADGET
    Q_PROPERTY(QString snapshotId MEMBER snapshotId)
    Q_PROPERTY(QString reason MEMBER reason)
    Q_PROPERTY(QString caption MEMBER caption)
    Q_PROPERTY(QString description READ description)
    Q_PROPERTY(QStringList icons MEMBER icons)
    Q_PROPERTY(QString names MEMBER names)
    Q_PROPERTY(QString changes MEMBER changes)
    Q_PROPERTY(bool isOriginal MEMBER isOriginal)
    Q_PROPERTY(bool isSameAsNow MEMBER isSameAsNow)

public:
    QString snapshotId;
    QString reason;
    /// When it was saved and how many applications it holds: "Today at 09:12 · 14 apps".
    QString caption;
    /// The sources of their icons.
    QStringList icons;
    QString names;
    /// What restoring it would change: a line each for apps that come back, leave and move, or one that none does.
    QString changes;
    bool isOriginal = false;
    /// The applications are those of the present Dock, in the same order.
    bool isSameAsNow = false;

    bool operator==(const SnapshotRow&) const = default;
    QString key() const { return snapshotId; }
    /// Reason and caption in one, for reading out.
    QString description() const { return reason + QStringLiteral(", ") + caption; }

    static SnapshotRow of(const DockCore::Snapshot& snapshot, const QList<DockCore::DockTile>& current,
                          const AppNames& names, const QDateTime& now);
};

} // namespace Kelvane
