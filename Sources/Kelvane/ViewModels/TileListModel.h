#pragma once

#include "DockCore/DockDiff.h"
#include "DockCore/DockTile.h"
#include "Kelvane/ViewModels/RowListModel.h"

#include <QStringList>

namespace Kelvane {

/// One tile of a drawn Dock.
struct TileRow {
    enum class Mark { none, arriving, leaving, movedForward, movedBack };

    QString id;
    QString name;
    QString iconSource;
    bool isSpacer = false;
    bool isPinned = false;
    Mark mark = Mark::none;

    bool operator==(const TileRow&) const = default;
    QString key() const { return id; }
    /// What a screen reader says: the whole name and what the marks show.
    QString accessibleName() const;
};

/// The tiles of a drawn Dock, in order. Rows keep their identity when the Dock changes, so that tiles slide to where
/// they go. Main thread only.
class TileListModel : public RowListModel<TileRow> {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role {
        idRole = Qt::UserRole + 1,
        nameRole,
        iconSourceRole,
        spacerRole,
        pinnedRole,
        markRole,
        accessibleNameRole
    };

    explicit TileListModel(QObject* parent = nullptr);

    void setTiles(const QList<TileRow>& tiles) { setRows(tiles); }
    int count() const { return rowCount(); }
    /// Spacers do not count.
    qsizetype appCount() const;
    QHash<int, QByteArray> roleNames() const override;

    /// The Dock as it is: no spacers, and what leaves is marked.
    static QList<TileRow> current(const QList<DockCore::DockTile>& current, const DockCore::DockDiff& diff);
    /// The Dock as it would be: what arrives and what moves is marked, relative to `current`, and `pinned` wear a pin.
    static QList<TileRow> proposed(const QList<DockCore::DockTile>& proposal, const QList<DockCore::DockTile>& current,
                                   const DockCore::DockDiff& diff, const QStringList& pinned);
    /// A Dock by itself, without marks.
    static QList<TileRow> plain(const QList<DockCore::DockTile>& tiles, const QStringList& pinned);

Q_SIGNALS:
    void countChanged();

protected:
    QVariant value(const TileRow& row, int role) const override;
};

} // namespace Kelvane
