#pragma once

#include "DockCore/SnapshotStore.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

namespace Kelvane {

class AppNames;

/// The sentences about one saved Dock. The same input gives the same text.
namespace SnapshotText {

/// "Today at 09:12 · 14 apps".
QString caption(const DockCore::Snapshot& snapshot, const QDateTime& now);
/// What restoring it would do to the Dock of `current`, a line each for what comes back, leaves and moves; one line
/// says so when nothing would.
QStringList changes(const DockCore::Snapshot& snapshot, const QList<DockCore::DockTile>& current,
                    const AppNames& names);
/// Whether the applications are those of `current`, in the same order.
bool hasSameApps(const DockCore::Snapshot& snapshot, const QList<DockCore::DockTile>& current);

} // namespace SnapshotText
} // namespace Kelvane
