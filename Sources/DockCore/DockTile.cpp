#include "DockCore/DockTile.h"

#include "DockCore/AppInfo.h"

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace DockCore {

namespace {

constexpr std::array kindNames = {
    std::pair(DockTile::Kind::app, QLatin1String("app")),
    std::pair(DockTile::Kind::spacer, QLatin1String("spacer")),
    std::pair(DockTile::Kind::smallSpacer, QLatin1String("smallSpacer")),
    std::pair(DockTile::Kind::flexSpacer, QLatin1String("flexSpacer")),
    std::pair(DockTile::Kind::other, QLatin1String("other")),
};

std::optional<QString> stringIn(const PropertyList::Dictionary& dictionary, const QString& key) {
    const auto entry = dictionary.constFind(key);
    if (entry == dictionary.constEnd() || !entry->string())
        return std::nullopt;
    return *entry->string();
}

PropertyList::Dictionary dictionaryIn(const PropertyList::Dictionary& dictionary, const QString& key) {
    const auto entry = dictionary.constFind(key);
    if (entry == dictionary.constEnd() || !entry->dictionary())
        return {};
    return *entry->dictionary();
}

DockTile::Kind kindOf(const QString& tileType, bool isApplication) {
    if (tileType == u"spacer-tile"_s)
        return DockTile::Kind::spacer;
    if (tileType == u"small-spacer-tile"_s)
        return DockTile::Kind::smallSpacer;
    if (tileType == u"flex-spacer-tile"_s)
        return DockTile::Kind::flexSpacer;
    if (tileType == u"file-tile"_s && isApplication)
        return DockTile::Kind::app;
    return DockTile::Kind::other;
}

QString nameWithoutExtension(const URL& url) {
    const QString name = url.lastPathComponent();
    const QString extension = url.pathExtension();
    return extension.isEmpty() ? name : name.chopped(extension.size() + 1);
}

} // namespace

DockTile::DockTile(const PropertyList::Dictionary& dictionary, qsizetype index)
    : raw(dictionary) {
    const PropertyList::Dictionary data = dictionaryIn(raw, u"tile-data"_s);
    if (const auto written = stringIn(dictionaryIn(data, u"file-data"_s), u"_CFURLString"_s))
        url = URL::parse(*written);
    bundleID = stringIn(data, u"bundle-identifier"_s);

    const bool isApplication = bundleID || (url && url->pathExtension() == u"app"_s);
    kind = kindOf(stringIn(raw, u"tile-type"_s).value_or(QString()), isApplication);

    if (const auto written = stringIn(data, u"file-label"_s))
        label = *written;
    else if (url)
        label = nameWithoutExtension(*url);

    id = bundleID ? u"app:"_s + *bundleID : rawValue(kind) + u':' + QString::number(index);
}

DockTile DockTile::app(const AppInfo& info) {
    const PropertyList::Dictionary location = {
        {u"_CFURLString"_s, {URL::folder(info.path).absoluteString}},
        {u"_CFURLStringType"_s, {qint64(15)}},
    };
    const PropertyList::Dictionary data = {
        {u"bundle-identifier"_s, {info.bundleID}},
        {u"file-label"_s, {info.name}},
        {u"file-type"_s, {qint64(41)}},
        {u"file-data"_s, {location}},
    };
    return DockTile({{u"tile-type"_s, {u"file-tile"_s}}, {u"tile-data"_s, {data}}}, 0);
}

DockTile DockTile::smallSpacer(qsizetype index) {
    return DockTile({{u"tile-type"_s, {u"small-spacer-tile"_s}}, {u"tile-data"_s, {PropertyList::Dictionary()}}},
                    index);
}

QString DockTile::signature() const {
    if (bundleID)
        return *bundleID;
    if (kind == Kind::other && url)
        return url->absoluteString;
    return rawValue(kind);
}

QString rawValue(DockTile::Kind kind) {
    for (const auto& [candidate, name] : kindNames) {
        if (candidate == kind)
            return name;
    }
    Q_UNREACHABLE();
    return {};
}

std::optional<DockTile::Kind> kindFromRawValue(const QString& rawValue) {
    for (const auto& [kind, name] : kindNames) {
        if (name == rawValue)
            return kind;
    }
    return std::nullopt;
}

bool isSpacer(DockTile::Kind kind) {
    return kind == DockTile::Kind::spacer || kind == DockTile::Kind::smallSpacer || kind == DockTile::Kind::flexSpacer;
}

QList<DockTile> tilesFrom(const std::optional<PropertyList>& persistentApps) {
    if (!persistentApps || !persistentApps->array())
        return {};
    QList<DockTile> tiles;
    for (const PropertyList& element : *persistentApps->array()) {
        if (!element.dictionary())
            return {};
        tiles.append(DockTile(*element.dictionary(), tiles.size()));
    }
    return tiles;
}

QStringList layoutSignature(const QList<DockTile>& tiles) {
    QStringList signatures;
    signatures.reserve(tiles.size());
    for (const DockTile& tile : tiles)
        signatures.append(tile.signature());
    return signatures;
}

QStringList bundleIDs(const QList<DockTile>& tiles) {
    QStringList result;
    for (const DockTile& tile : tiles) {
        if (tile.bundleID)
            result.append(*tile.bundleID);
    }
    return result;
}

} // namespace DockCore
