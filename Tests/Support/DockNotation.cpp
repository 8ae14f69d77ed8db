#include "Support/DockNotation.h"

using namespace Qt::StringLiterals;
using DockCore::DockTile;
using DockCore::PropertyList;
using Dictionary = DockCore::PropertyList::Dictionary;

namespace DockNotation {

namespace {

Dictionary tile(const QString& type, const Dictionary& data) {
    return {{u"GUID"_s, {qint64(qHash(type) % 1'000'000)}}, {u"tile-type"_s, {type}}, {u"tile-data"_s, {data}}};
}

Dictionary raw(const QString& word) {
    if (word == u"|")
        return tile(u"spacer-tile"_s, {});
    if (word == u"_")
        return tile(u"small-spacer-tile"_s, {});
    if (word == u"~")
        return tile(u"flex-spacer-tile"_s, {});
    if (word == u"?")
        return tile(u"recents-tile"_s, {});
    if (word.contains(u'/')) {
        const Dictionary location = {{u"_CFURLString"_s, {u"file://"_s + word}}, {u"_CFURLStringType"_s, {qint64(15)}}};
        return tile(u"file-tile"_s, {{u"file-data"_s, {location}}});
    }
    return tile(u"file-tile"_s, {{u"bundle-identifier"_s, {word}}, {u"file-label"_s, {word}}});
}

} // namespace

QList<DockTile> tiles(const QString& text) {
    QList<DockTile> result;
    for (const QString& word : text.split(u' ', Qt::SkipEmptyParts))
        result.append(DockTile(raw(word), result.size()));
    return result;
}

PropertyList apps(const QString& text) {
    PropertyList::Array array;
    for (const DockTile& tile : tiles(text))
        array.append(PropertyList{tile.raw});
    return {array};
}

} // namespace DockNotation
