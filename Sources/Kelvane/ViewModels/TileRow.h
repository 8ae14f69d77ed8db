#pragma once

#include "DockCore/DockDiff.h"
#include "DockCore/DockTile.h"

#include <QObject>
#include <QString>
#include <QStringList>

namespace Kelvane {

/// One tile of a drawn Dock. Rows keep their key when the Dock changes, so that tiles slide to where they go. A plain
/// value.
struct TileRow {
    Q_GADGET
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString iconSource MEMBER iconSource)
    Q_PROPERTY(bool spacer MEMBER isSpacer)
    Q_PROPERTY(bool pinned MEMBER isPinned)
    Q_PROPERTY(QString mark READ markName)
    Q_PROPERTY(QString accessibleName READ accessibleName)

public:
    enum class Mark { none, arriving, leaving, movedForward, movedBack };
    Q_ENUM(Mark)

    QString id;
    QString name;
    QString iconSource;
    bool isSpacer = false;
    bool isPinned = false;
    Mark mark = Mark::none;

    bool operator==(const TileRow&) const = default;
    QString key() const { return id; }
    QString markName() const;
    /// For screen readers: the whole name and the meaning of the marks.
    QString accessibleName() const;

    /// The Dock as it is: no spacers, and what leaves is marked.
    static QList<TileRow> current(const QList<DockCore::DockTile>& current, const DockCore::DockDiff& diff);
    /// The Dock as it would be: what arrives and what moves is marked, relative to `current`, and `pinned` wear a pin.
    static QList<TileRow> proposed(const QList<DockCore::DockTile>& proposal, const QList<DockCore::DockTile>& current,
                                   const DockCore::DockDiff& diff, const QStringList& pinned);
    /// A Dock by itself, without marks.
    static QList<TileRow> plain(const QList<DockCore::DockTile>& tiles, const QStringList& pinned);
    /// So many applications that their tiles are drawn smaller; spacers do not count.
    static bool areDense(const QList<TileRow>& rows);
};

} // namespace Kelvane
