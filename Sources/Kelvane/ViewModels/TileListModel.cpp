#include "Kelvane/ViewModels/TileListModel.h"

#include "Kelvane/ViewModels/IconAddress.h"

#include <QSet>

#include <algorithm>

namespace Kelvane {

using namespace Qt::StringLiterals;
using DockCore::DockDiff;
using DockCore::DockTile;

namespace {

QString markName(TileRow::Mark mark) {
    switch (mark) {
    case TileRow::Mark::none:
        return u"none"_s;
    case TileRow::Mark::arriving:
        return u"arriving"_s;
    case TileRow::Mark::leaving:
        return u"leaving"_s;
    case TileRow::Mark::movedForward:
        return u"movedForward"_s;
    case TileRow::Mark::movedBack:
        return u"movedBack"_s;
    }
    Q_UNREACHABLE();
}

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

/// The applications of `tiles` that `kept` names, in order and each once.
QStringList ranks(const QList<DockTile>& tiles, const QSet<QString>& kept) {
    QStringList ranks;
    for (const DockTile& tile : tiles) {
        if (tile.bundleID && kept.contains(*tile.bundleID) && !ranks.contains(*tile.bundleID))
            ranks.append(*tile.bundleID);
    }
    return ranks;
}

QSet<QString> identifiers(const QList<DockTile>& tiles) {
    QSet<QString> identifiers;
    for (const DockTile& tile : tiles) {
        if (tile.bundleID)
            identifiers.insert(*tile.bundleID);
    }
    return identifiers;
}

} // namespace

QString TileRow::accessibleName() const {
    QStringList words = {name};
    switch (mark) {
    case Mark::none:
        break;
    case Mark::arriving:
        words.append(u"added"_s);
        break;
    case Mark::leaving:
        words.append(u"leaving"_s);
        break;
    case Mark::movedForward:
        words.append(u"moved forward"_s);
        break;
    case Mark::movedBack:
        words.append(u"moved back"_s);
        break;
    }
    if (isPinned)
        words.append(u"always in the Dock"_s);
    return words.join(u", "_s);
}

TileListModel::TileListModel(QObject* parent)
    : RowListModel(parent) {
    connect(this, &QAbstractItemModel::rowsInserted, this, &TileListModel::countChanged);
    connect(this, &QAbstractItemModel::rowsRemoved, this, &TileListModel::countChanged);
}

QHash<int, QByteArray> TileListModel::roleNames() const {
    return {{idRole, "tileId"},     {nameRole, "name"}, {iconSourceRole, "iconSource"},        {spacerRole, "spacer"},
            {pinnedRole, "pinned"}, {markRole, "mark"}, {accessibleNameRole, "accessibleName"}};
}

QVariant TileListModel::value(const TileRow& row, int role) const {
    switch (role) {
    case idRole:
        return row.id;
    case nameRole:
        return row.name;
    case iconSourceRole:
        return row.iconSource;
    case spacerRole:
        return row.isSpacer;
    case pinnedRole:
        return row.isPinned;
    case markRole:
        return markName(row.mark);
    case accessibleNameRole:
        return row.accessibleName();
    default:
        return {};
    }
}

qsizetype TileListModel::appCount() const {
    return std::count_if(rows().begin(), rows().end(), [](const TileRow& row) { return !row.isSpacer; });
}

QList<TileRow> TileListModel::current(const QList<DockTile>& current, const DockDiff& diff) {
    QList<TileRow> rows;
    for (const DockTile& tile : current) {
        if (isSpacer(tile.kind))
            continue;
        TileRow next = row(tile);
        if (tile.bundleID && diff.removed.contains(*tile.bundleID))
            next.mark = TileRow::Mark::leaving;
        rows.append(next);
    }
    return rows;
}

QList<TileRow> TileListModel::proposed(const QList<DockTile>& proposal, const QList<DockTile>& current,
                                       const DockDiff& diff, const QStringList& pinned) {
    const QSet<QString> both = identifiers(current).intersect(identifiers(proposal));
    const QStringList before = ranks(current, both);
    const QStringList after = ranks(proposal, both);
    QList<TileRow> rows = plain(proposal, pinned);
    for (qsizetype i = 0; i < rows.size(); ++i) {
        const QString identifier = proposal[i].bundleID.value_or(QString());
        if (diff.added.contains(identifier))
            rows[i].mark = TileRow::Mark::arriving;
        else if (diff.moved.contains(identifier))
            rows[i].mark = after.indexOf(identifier) < before.indexOf(identifier) ? TileRow::Mark::movedForward
                                                                                  : TileRow::Mark::movedBack;
    }
    return rows;
}

QList<TileRow> TileListModel::plain(const QList<DockTile>& tiles, const QStringList& pinned) {
    QList<TileRow> rows;
    for (const DockTile& tile : tiles) {
        rows.append(row(tile));
        rows.last().isPinned = tile.bundleID && pinned.contains(*tile.bundleID);
    }
    return rows;
}

} // namespace Kelvane
