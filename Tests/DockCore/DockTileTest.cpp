#include "DockCore/DockTile.h"

#include "DockCore/AppInfo.h"
#include "Support/DockNotation.h"

#include <QtTest>

#include <type_traits>

using namespace Qt::StringLiterals;
using DockCore::AppInfo;
using DockCore::DockTile;
using DockCore::layoutSignature;
using DockCore::PropertyList;
using DockCore::tilesFrom;
using DockNotation::tiles;
using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;
using Kind = DockTile::Kind;

Q_DECLARE_METATYPE(DockCore::DockTile::Kind)
Q_DECLARE_METATYPE(DockCore::PropertyList)

static_assert(std::is_copy_constructible_v<DockTile>);
static_assert(std::is_nothrow_move_constructible_v<DockTile>);
static_assert(std::equality_comparable<DockTile>);

namespace {

PropertyList integer(qint64 number) {
    return {number};
}

Dictionary tile(const QString& type, const Dictionary& data) {
    return {{u"tile-type"_s, {type}}, {u"tile-data"_s, {data}}};
}

Dictionary fileAt(const QString& url) {
    return {{u"file-data"_s, {Dictionary{{u"_CFURLString"_s, {url}}}}}};
}

Dictionary with(Dictionary dictionary, const QString& key, const PropertyList& value) {
    dictionary.insert(key, value);
    return dictionary;
}

} // namespace

class DockTileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsATile_data();
    void readsATile();
    void keepsTheDictionaryAsItCame();
    void makesTheTileOfAnApplication();
    void encodesThePathOfAnApplication();
    void makesASmallSpacer();
    void namesKinds_data();
    void namesKinds();
    void knowsNoOtherKind_data();
    void knowsNoOtherKind();
    void readsLists_data();
    void readsLists();
    void signatureOfAnEmptyListIsEmpty();
    void signatureLeavesOutLabels();
    void signatureLeavesOutTheOrderOfEqualSpacers();
    void signatureTellsSpacersApart();
    void signatureHoldsOneStringATile();
};

void DockTileTest::readsATile_data() {
    QTest::addColumn<PropertyList>("raw");
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("signature");
    const auto row = [](const char* name, const Dictionary& raw, Kind kind, const QString& id, const QString& label,
                        const QString& url, const QString& signature) {
        QTest::newRow(name) << PropertyList{raw} << kind << id << label << url << signature;
    };
    const QString file = u"file-tile"_s;
    const QString identifier = u"bundle-identifier"_s;
    const QString labelKey = u"file-label"_s;
    const QString notes = u"file:///Applications/Notes.app/"_s;
    const QString report = u"file:///Users/x/report.pdf"_s;

    row("no type and no data", {}, Kind::other, u"other:7"_s, u""_s, u""_s, u"other"_s);
    row("an application", tile(file, with(with(fileAt(notes), identifier, {u"a.b"_s}), labelKey, {u"N"_s})), Kind::app,
        u"app:a.b"_s, u"N"_s, notes, u"a.b"_s);
    row("a file with an identifier and no location", tile(file, {{identifier, {u"a.b"_s}}}), Kind::app, u"app:a.b"_s,
        u""_s, u""_s, u"a.b"_s);
    row("a file ending in .app without an identifier", tile(file, fileAt(notes)), Kind::app, u"app:7"_s, u"Notes"_s,
        notes, u"app"_s);
    row("a file ending in .APP is no application", tile(file, fileAt(u"file:///Notes.APP"_s)), Kind::other,
        u"other:7"_s, u"Notes"_s, u"file:///Notes.APP"_s, u"file:///Notes.APP"_s);
    row("a document", tile(file, fileAt(report)), Kind::other, u"other:7"_s, u"report"_s, report, report);
    row("a document with a label", tile(file, with(fileAt(report), labelKey, {u"Report"_s})), Kind::other, u"other:7"_s,
        u"Report"_s, report, report);
    row("an empty label counts", tile(file, with(fileAt(report), labelKey, {u""_s})), Kind::other, u"other:7"_s, u""_s,
        report, report);
    row("a file without a location", tile(file, {}), Kind::other, u"other:7"_s, u""_s, u""_s, u"other"_s);
    row("an empty identifier is one", tile(file, {{identifier, {u""_s}}}), Kind::app, u"app:"_s, u""_s, u""_s, u""_s);
    row("a spacer", tile(u"spacer-tile"_s, {}), Kind::spacer, u"spacer:7"_s, u""_s, u""_s, u"spacer"_s);
    row("a small spacer", tile(u"small-spacer-tile"_s, {}), Kind::smallSpacer, u"smallSpacer:7"_s, u""_s, u""_s,
        u"smallSpacer"_s);
    row("a flexible spacer", tile(u"flex-spacer-tile"_s, {}), Kind::flexSpacer, u"flexSpacer:7"_s, u""_s, u""_s,
        u"flexSpacer"_s);
    row("a spacer with an identifier", tile(u"spacer-tile"_s, {{identifier, {u"a.b"_s}}}), Kind::spacer, u"app:a.b"_s,
        u""_s, u""_s, u"a.b"_s);
    row("a spacer with a location", tile(u"spacer-tile"_s, fileAt(notes)), Kind::spacer, u"spacer:7"_s, u"Notes"_s,
        notes, u"spacer"_s);
    row("another type with an identifier", tile(u"directory-tile"_s, {{identifier, {u"a.b"_s}}}), Kind::other,
        u"app:a.b"_s, u""_s, u""_s, u"a.b"_s);
    row("another type with a bundle's location", tile(u"directory-tile"_s, fileAt(notes)), Kind::other, u"other:7"_s,
        u"Notes"_s, notes, notes);
    row("types differ by case", tile(u"Spacer-Tile"_s, {}), Kind::other, u"other:7"_s, u""_s, u""_s, u"other"_s);
    row("a location that is encoded stays so", tile(file, fileAt(u"file:///a%20b%C3%A9.txt"_s)), Kind::other,
        u"other:7"_s, u"a bé"_s, u"file:///a%20b%C3%A9.txt"_s, u"file:///a%20b%C3%A9.txt"_s);
    row("a location that is not is encoded", tile(file, fileAt(u"file:///a bé.txt"_s)), Kind::other, u"other:7"_s,
        u"a bé"_s, u"file:///a%20b%C3%A9.txt"_s, u"file:///a%20b%C3%A9.txt"_s);
    row("an extension that is encoded", tile(file, fileAt(u"file:///Notes%2Eapp/"_s)), Kind::app, u"app:7"_s,
        u"Notes"_s, u"file:///Notes%2Eapp/"_s, u"app"_s);
    row("an empty location is none", tile(file, fileAt(u""_s)), Kind::other, u"other:7"_s, u""_s, u""_s, u"other"_s);
    row("a location that is no URL", tile(file, fileAt(u"http://h:x/a.app"_s)), Kind::other, u"other:7"_s, u""_s, u""_s,
        u"other"_s);
    row("the root has a name", tile(file, fileAt(u"file:///"_s)), Kind::other, u"other:7"_s, u"/"_s, u"file:///"_s,
        u"file:///"_s);

    row("a type that is no string", {{u"tile-type"_s, integer(1)}, {u"tile-data"_s, {fileAt(notes)}}}, Kind::other,
        u"other:7"_s, u"Notes"_s, notes, notes);
    row("data that is no dictionary", {{u"tile-type"_s, {file}}, {u"tile-data"_s, {Array{{fileAt(notes)}}}}},
        Kind::other, u"other:7"_s, u""_s, u""_s, u"other"_s);
    row("an identifier that is no string", tile(file, with(fileAt(notes), identifier, {QByteArray("a.b")})), Kind::app,
        u"app:7"_s, u"Notes"_s, notes, u"app"_s);
    row("a label that is no string", tile(file, with(fileAt(notes), labelKey, integer(5))), Kind::app, u"app:7"_s,
        u"Notes"_s, notes, u"app"_s);
    row("file data that is no dictionary", tile(file, {{u"file-data"_s, {notes}}}), Kind::other, u"other:7"_s, u""_s,
        u""_s, u"other"_s);
    row("a location that is no string", tile(file, {{u"file-data"_s, {Dictionary{{u"_CFURLString"_s, {true}}}}}}),
        Kind::other, u"other:7"_s, u""_s, u""_s, u"other"_s);
    row("keys of the data in the tile do not count",
        {{u"tile-type"_s, {file}}, {identifier, {u"a.b"_s}}, {labelKey, {u"N"_s}}}, Kind::other, u"other:7"_s, u""_s,
        u""_s, u"other"_s);
}

void DockTileTest::readsATile() {
    QFETCH(const PropertyList, raw);
    const DockTile tile(*raw.dictionary(), 7);
    QTEST(tile.kind, "kind");
    QTEST(tile.id, "id");
    QTEST(tile.label, "label");
    QTEST(tile.url ? tile.url->absoluteString : QString(), "url");
    QTEST(tile.signature(), "signature");
    QVERIFY(tile.raw == *raw.dictionary());
}

void DockTileTest::keepsTheDictionaryAsItCame() {
    const Dictionary data = {
        {u"bundle-identifier"_s, {u"a.b"_s}},
        {u"book"_s, {QByteArray("book\0", 5)}},
        {u"file-mod-date"_s, integer(3593825647)},
        {u"large"_s, {1ULL << 63}},
        {u"real"_s, {0.1}},
        {u"flag"_s, {true}},
        {u"when"_s, {PropertyList::Date{0.5}}},
        {u"uid"_s, {PropertyList::UID{1}}},
        {u"empty"_s, {Array{{Array()}, {Dictionary()}, {u""_s}, {QByteArray()}}}},
        {u"file-data"_s, {Dictionary{{u"_CFURLString"_s, {u"file:///a b"_s}}, {u"_CFURLStringType"_s, integer(0)}}}},
    };
    const Dictionary raw = with(tile(u"file-tile"_s, data), u"GUID"_s, integer(199915944));
    QVERIFY(DockTile(raw, 0).raw == raw);
}

void DockTileTest::makesTheTileOfAnApplication() {
    const DockTile tile =
        DockTile::app(AppInfo{u"com.apple.Safari"_s, u"Safari Browser"_s, u"/Applications/Safari.app"_s});
    QCOMPARE(tile.kind, Kind::app);
    QCOMPARE(tile.id, u"app:com.apple.Safari"_s);
    QCOMPARE(tile.bundleID, u"com.apple.Safari"_s);
    QCOMPARE(tile.label, u"Safari Browser"_s);
    QCOMPARE(tile.url->absoluteString, u"file:///Applications/Safari.app/"_s);
    QCOMPARE(tile.signature(), u"com.apple.Safari"_s);
    const Dictionary location = {{u"_CFURLString"_s, {u"file:///Applications/Safari.app/"_s}},
                                 {u"_CFURLStringType"_s, integer(15)}};
    const Dictionary data = {{u"bundle-identifier"_s, {u"com.apple.Safari"_s}},
                             {u"file-label"_s, {u"Safari Browser"_s}},
                             {u"file-type"_s, integer(41)},
                             {u"file-data"_s, {location}}};
    QVERIFY((tile.raw == Dictionary{{u"tile-type"_s, {u"file-tile"_s}}, {u"tile-data"_s, {data}}}));
}

void DockTileTest::encodesThePathOfAnApplication() {
    const DockTile tile = DockTile::app(AppInfo{u"a.b"_s, u"Größe 100%"_s, u"/Applications/Größe 100%.app"_s});
    QCOMPARE(tile.url->absoluteString, u"file:///Applications/Gr%C3%B6%C3%9Fe%20100%25.app/"_s);
    QCOMPARE(tile.url->path(), u"/Applications/Größe 100%.app"_s);
    QCOMPARE(tile.label, u"Größe 100%"_s);
}

void DockTileTest::makesASmallSpacer() {
    const DockTile tile = DockTile::smallSpacer(3);
    QCOMPARE(tile.kind, Kind::smallSpacer);
    QCOMPARE(tile.id, u"smallSpacer:3"_s);
    QCOMPARE(tile.label, QString());
    QVERIFY(!tile.bundleID && !tile.url);
    QVERIFY((tile.raw == Dictionary{{u"tile-type"_s, {u"small-spacer-tile"_s}}, {u"tile-data"_s, {Dictionary()}}}));
}

void DockTileTest::namesKinds_data() {
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("spacer");
    QTest::newRow("an application") << Kind::app << u"app"_s << false;
    QTest::newRow("a spacer") << Kind::spacer << u"spacer"_s << true;
    QTest::newRow("a small spacer") << Kind::smallSpacer << u"smallSpacer"_s << true;
    QTest::newRow("a flexible spacer") << Kind::flexSpacer << u"flexSpacer"_s << true;
    QTest::newRow("another item") << Kind::other << u"other"_s << false;
}

void DockTileTest::namesKinds() {
    QFETCH(const Kind, kind);
    QFETCH(const QString, name);
    QCOMPARE(DockCore::rawValue(kind), name);
    QVERIFY(DockCore::kindFromRawValue(name) == kind);
    QTEST(DockCore::isSpacer(kind), "spacer");
}

void DockTileTest::knowsNoOtherKind_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("nothing") << QString();
    QTest::newRow("another case") << u"App"_s;
    QTest::newRow("a tile type") << u"spacer-tile"_s;
    QTest::newRow("blanks around it") << u" app"_s;
}

void DockTileTest::knowsNoOtherKind() {
    QFETCH(const QString, name);
    QVERIFY(!DockCore::kindFromRawValue(name));
}

void DockTileTest::readsLists_data() {
    QTest::addColumn<PropertyList>("value");
    QTest::addColumn<QStringList>("signature");
    const Dictionary app = tile(u"file-tile"_s, {{u"bundle-identifier"_s, {u"a"_s}}});
    QTest::newRow("tiles in order") << PropertyList{Array{{app}, {tile(u"spacer-tile"_s, {})}, {app}}}
                                    << QStringList{u"a"_s, u"spacer"_s, u"a"_s};
    QTest::newRow("an empty list") << PropertyList{Array()} << QStringList();
    QTest::newRow("a list with one string in it") << PropertyList{Array{{app}, {u"a"_s}, {app}}} << QStringList();
    QTest::newRow("a dictionary") << PropertyList{app} << QStringList();
    QTest::newRow("a string") << PropertyList{u"a"_s} << QStringList();
}

void DockTileTest::readsLists() {
    QFETCH(const PropertyList, value);
    QTEST(layoutSignature(tilesFrom(value)), "signature");
    QVERIFY(tilesFrom(std::nullopt).isEmpty());
}

void DockTileTest::signatureOfAnEmptyListIsEmpty() {
    QCOMPARE(layoutSignature({}), QStringList());
}

void DockTileTest::signatureLeavesOutLabels() {
    QList<DockTile> renamed = tiles(u"a b"_s);
    renamed[0] = DockTile(tile(u"file-tile"_s, {{u"bundle-identifier"_s, {u"a"_s}}, {u"file-label"_s, {u"A"_s}}}), 0);
    QVERIFY(renamed != tiles(u"a b"_s));
    QCOMPARE(layoutSignature(renamed), layoutSignature(tiles(u"a b"_s)));
}

void DockTileTest::signatureLeavesOutTheOrderOfEqualSpacers() {
    QList<DockTile> list = tiles(u"a _ b _"_s);
    const QStringList before = layoutSignature(list);
    list.swapItemsAt(1, 3);
    QCOMPARE(layoutSignature(list), before);
    QVERIFY(list[1].id == u"smallSpacer:3" && list[3].id == u"smallSpacer:1");
}

void DockTileTest::signatureTellsSpacersApart() {
    QVERIFY(layoutSignature(tiles(u"a _ |"_s)) != layoutSignature(tiles(u"a | _"_s)));
}

void DockTileTest::signatureHoldsOneStringATile() {
    const QStringList expected = {u"a"_s, u"spacer"_s, u"smallSpacer"_s, u"flexSpacer"_s, u"file:///d"_s, u"other"_s};
    QCOMPARE(layoutSignature(tiles(u"a | _ ~ /d ?"_s)), expected);
}

QTEST_GUILESS_MAIN(DockTileTest)

#include "DockTileTest.moc"
