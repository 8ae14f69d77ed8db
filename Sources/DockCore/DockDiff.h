#pragma once

#include "DockCore/DockTile.h"

namespace DockCore {

/// What turns one Dock into another, by bundle identifier; tiles without one do not take part. A plain value.
struct DockDiff {
    /// In the new list only, in its order.
    QStringList added;
    /// In the old list only, in its order.
    QStringList removed;
    /// In both, at another rank among the applications that are in both; in the new list's order.
    QStringList moved;

    DockDiff() = default;
    DockDiff(const QList<DockTile>& from, const QList<DockTile>& to);

    bool operator==(const DockDiff&) const = default;
    bool isEmpty() const { return added.isEmpty() && removed.isEmpty() && moved.isEmpty(); }
};

} // namespace DockCore
