#pragma once

#include "DockCore/Storage/PropertyList.h"
#include "DockCore/Storage/URL.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace DockCore {

struct AppInfo;

/// One item of the Dock's "persistent-apps" list. It keeps the dictionary it was made from, which is what goes back to
/// the Dock. A plain value.
struct DockTile {
    enum class Kind { app, spacer, smallSpacer, flexSpacer, other };

    /// Stable within one list: "app:" and the bundle identifier, else the kind, ":" and the index.
    QString id;
    Kind kind = Kind::other;
    std::optional<QString> bundleID;
    QString label;
    std::optional<URL> url;
    PropertyList::Dictionary raw;

    DockTile() = default;
    /// Reads a tile dictionary of the Dock; never fails. `index` is the tile's place in its list, from 0.
    DockTile(const PropertyList::Dictionary& dictionary, qsizetype index);

    bool operator==(const DockTile&) const = default;

    /// The tile of an installed application.
    static DockTile app(const AppInfo& info);
    static DockTile smallSpacer(qsizetype index);

    /// The bundle identifier, else the kind's raw value; for other items the URL where there is one.
    QString signature() const;
};

QString rawValue(DockTile::Kind kind);
std::optional<DockTile::Kind> kindFromRawValue(const QString& rawValue);
bool isSpacer(DockTile::Kind kind);

/// The tiles in a "persistent-apps" value; none when it is not an array of dictionaries throughout.
QList<DockTile> tilesFrom(const std::optional<PropertyList>& persistentApps);

/// One signature a tile, in order. Two lists are the same Dock exactly when these are equal.
QStringList layoutSignature(const QList<DockTile>& tiles);

/// The identifiers of the tiles that have one, in order.
QStringList bundleIDs(const QList<DockTile>& tiles);

} // namespace DockCore
