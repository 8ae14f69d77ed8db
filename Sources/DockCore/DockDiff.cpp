#include "DockCore/DockDiff.h"

#include <QSet>

#include <algorithm>

namespace DockCore {

namespace {

enum class Membership { inSet, notInSet };

QStringList filtered(const QStringList& list, const QSet<QString>& set, Membership wanted) {
    QStringList result;
    for (const QString& element : list) {
        if (set.contains(element) == (wanted == Membership::inSet))
            result.append(element);
    }
    return result;
}

} // namespace

DockDiff::DockDiff(const QList<DockTile>& from, const QList<DockTile>& to) {
    const QStringList oldList = bundleIDs(from);
    const QStringList newList = bundleIDs(to);
    const QSet<QString> oldSet(oldList.cbegin(), oldList.cend());
    const QSet<QString> newSet(newList.cbegin(), newList.cend());
    added = filtered(newList, oldSet, Membership::notInSet);
    removed = filtered(oldList, newSet, Membership::notInSet);

    const QStringList keptOld = filtered(oldList, newSet, Membership::inSet);
    const QStringList keptNew = filtered(newList, oldSet, Membership::inSet);
    const qsizetype ranks = std::min(keptOld.size(), keptNew.size());
    for (qsizetype rank = 0; rank < ranks; ++rank) {
        if (keptOld[rank] != keptNew[rank])
            moved.append(keptNew[rank]);
    }
}

} // namespace DockCore
