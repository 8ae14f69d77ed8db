#include "DockCore/AppInfo.h"
#include "DockCore/DockStore.h"
#include "DockCore/SnapshotStore.h"
#include "Support/FakeServices.h"

#include <QDirIterator>
#include <QtTest>

using namespace Qt::StringLiterals;
using DockCore::AppInfo;
using DockCore::DockTile;
using DockCore::layoutSignature;
using DockCore::PropertyList;
using DockCore::Snapshot;
using DockCore::SnapshotStore;
using DockCore::tilesFrom;
using Dictionary = PropertyList::Dictionary;

/// Whole Dock files go through everything that touches the Dock, and come back value for value: our own samples, and
/// those in the folder that KELVANE_SAMPLE_DOCKS names.
class RealDocksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sampleComesBack_data() { addFiles(QString::fromUtf8(KELVANE_OWN_SAMPLES)); }
    void sampleComesBack() { comesBack(); }
    void samplesHoldEveryKindOfTile();
    void realDockComesBack_data();
    void realDockComesBack();

private:
    static QString realDocks() {
        return qEnvironmentVariable("KELVANE_SAMPLE_DOCKS", QString::fromUtf8(KELVANE_SAMPLE_DOCKS));
    }
    static QStringList files(const QString& folder) {
        QStringList paths;
        for (const QFileInfo& info : QDir(folder).entryInfoList({u"*.plist"_s}, QDir::Files, QDir::Name))
            paths.append(info.filePath());
        return paths;
    }
    static void addFiles(const QString& folder) {
        QTest::addColumn<QString>("path");
        for (const QString& path : files(folder))
            QTest::addRow("%s", qPrintable(QFileInfo(path).fileName())) << path;
    }
    static void comesBack();
};

void RealDocksTest::comesBack() {
    QFETCH(const QString, path);
    const auto dock = PropertyList::readDictionary(path);
    QVERIFY(dock);
    for (const auto format : {PropertyList::Format::xml, PropertyList::Format::binary})
        QVERIFY(PropertyList::parse(PropertyList{*dock}.serialize(format)) == PropertyList{*dock});

    Fakes::World world;
    const QString copy = world.directory.filePath(u"dock.plist"_s);
    QVERIFY(QFile::copy(path, copy) && QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner));
    qputenv("KELVANE_DRY_RUN", QFile::encodeName(copy));
    const QList<DockTile> before = world.dockStore.currentTiles();
    QCOMPARE(before.size(), dock->value(u"persistent-apps"_s).array()->size());
    SnapshotStore snapshots = world.snapshotStore(world.directory.path());
    const Snapshot original = snapshots.capture(u"Before Kelvane"_s, SnapshotStore::Mark::original);

    // What a plan does with a Dock: another order, something new, a spacer, something left out.
    QList<DockTile> planned(before.crbegin(), before.crend());
    if (!planned.isEmpty())
        planned.removeLast();
    planned.prepend(DockTile::app(AppInfo{u"org.example.New"_s, u"New"_s, u"/Applications/New App.app"_s}));
    planned.insert(1, DockTile::smallSpacer(1));
    world.dockStore.write(planned);

    Dictionary expected = *dock;
    PropertyList::Array apps;
    for (const DockTile& tile : planned)
        apps.append(PropertyList{tile.raw});
    expected[u"persistent-apps"_s] = {apps};
    QVERIFY(PropertyList::readDictionary(copy) == expected);
    QCOMPARE(layoutSignature(world.dockStore.currentTiles()), layoutSignature(planned));
    QVERIFY(snapshots.previous(planned) == original);

    world.snapshotStore(world.directory.path()).restore(original);
    QVERIFY(PropertyList::readDictionary(copy) == *dock);
    QVERIFY(world.dockStore.currentTiles() == before);
}

void RealDocksTest::samplesHoldEveryKindOfTile() {
    QSet<QString> kinds;
    for (const QString& path : files(QString::fromUtf8(KELVANE_OWN_SAMPLES))) {
        for (const DockTile& tile : tilesFrom(PropertyList::readDictionary(path)->value(u"persistent-apps"_s)))
            kinds.insert(DockCore::rawValue(tile.kind));
    }
    QCOMPARE(kinds.size(), 5);
}

void RealDocksTest::realDockComesBack_data() {
    addFiles(realDocks());
    if (files(realDocks()).isEmpty())
        QTest::newRow("no real Docks are at hand") << QString();
}

void RealDocksTest::realDockComesBack() {
    if (files(realDocks()).isEmpty())
        QSKIP("There are no Dock files in the folder that KELVANE_SAMPLE_DOCKS names.");
    comesBack();
}

QTEST_GUILESS_MAIN(RealDocksTest)

#include "RealDocksTest.moc"
