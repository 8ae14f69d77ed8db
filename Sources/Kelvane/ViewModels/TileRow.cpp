#include "Kelvane/ViewModels/TileRow.h"

#include "Kelvane/ViewModels/IconAddress.h"

#include <QMetaEnum>

#include <algorithm>
#include <array>

namespace Kelvane {

using namespace Qt::StringLiterals;
using DockCore::DockDiff;
using DockCore::DockTile;

namespace {

/// With more applications than this their tiles are dense.
constexpr qsizetype mostRoomy = 27;

TileRow row(const DockTile& tile) {
    TileRow row;
    row.id = tile.id;
    row.name = tile.label;
    row.isSpacer = isSpacer(tile.kind);
    if (!row.isSpacer) {
        const IconAddress address{tile.bundleID.value_or(QString()), tile.label,
                                  tile.url ? tile.url->path() : QString()};
        row.iconSource = address.url();
    }
    return row;
}

/// The applications of `tiles` that are in `others`, too, in order and each once.
QStringList ranks(const QList<DockTile>& tiles, const QList<DockTile>& others) {
    const QStringList kept = bundleIDs(others);
    QStringList ranks = bundleIDs(tiles);
    ranks.removeDuplicates();
    ranks.removeIf([&kept](const QString& bundleID) { return !kept.contains(bundleID); });
    return ranks;
}

} // namespace

QString TileRow::markName() const {
    return QString::fromLatin1(QMetaEnum::fromType<Mark>().valueToKey(static_cast<int>(mark)));
}

QString TileRow::accessibleName() const {
    // By the order of `Mark`.
    static const std::array changes = {QString(), u", added"_s, u", leaving"_s, u", moved forward"_s,
                                       u", moved back"_s};
    return name + changes.at(static_cast<size_t>(mark)) + (isPinned ? u", always in the Dock"_s : QString());
}

QList<TileRow> TileRow::current(const QList<DockTile>& current, const DockDiff& diff) {
    QList<TileRow> rows;
    for (const DockTile& tile : current) {
        if (DockCore::isSpacer(tile.kind))
            continue;
        rows.append(row(tile));
        if (tile.bundleID && diff.removed.contains(*tile.bundleID))
            rows.last().mark = Mark::leaving;
    }
    return rows;
}

QList<TileRow> TileRow::proposed(const QList<DockTile>& proposal, const QList<DockTile>& current, const DockDiff& diff,
                                 const QStringList& pinned) {
    const QStringList before = ranks(current, proposal);
    const QStringList after = ranks(proposal, current);
    QList<TileRow> rows = plain(proposal, pinned);
    for (qsizetype i = 0; i < rows.size(); ++i) {
        const QString bundleID = proposal[i].bundleID.value_or(QString());
        if (diff.added.contains(bundleID))
            rows[i].mark = Mark::arriving;
        else if (diff.moved.contains(bundleID))
            rows[i].mark = after.indexOf(bundleID) < before.indexOf(bundleID) ? Mark::movedForward : Mark::movedBack;
    }
    return rows;
}

QList<TileRow> TileRow::plain(const QList<DockTile>& tiles, const QStringList& pinned) {
    QList<TileRow> rows;
    for (const DockTile& tile : tiles) {
        rows.append(row(tile));
        rows.last().isPinned = tile.bundleID && pinned.contains(*tile.bundleID);
    }
    return rows;
}

bool TileRow::areDense(const QList<TileRow>& rows) {
    return std::ranges::count(rows, false, &TileRow::isSpacer) > mostRoomy;
}

} // namespace Kelvane
