#include "DockCore/SnapshotStore.h"

#include "DockCore/DockStore.h"
#include "DockCore/Storage/JSONFile.h"
#include "Support/DockNotation.h"
#include "Support/FakeServices.h"
#include "Support/Files.h"
#include "Support/FullDisk.h"
#include "Support/Strictness.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QSet>
#include <QtTest>

#include <atomic>
#include <memory>
#include <thread>
#include <type_traits>

using namespace Qt::StringLiterals;
using DockCore::DockError;
using DockCore::FileError;
using DockCore::PropertyList;
using DockCore::Snapshot;
using DockCore::SnapshotStore;
using DockNotation::apps;
using DockNotation::tiles;
using Dictionary = PropertyList::Dictionary;
using Mark = SnapshotStore::Mark;
using Files::contentOf;
using Files::put;

namespace JSONFile = DockCore::JSONFile;

static_assert(std::is_copy_constructible_v<Snapshot>);
static_assert(std::is_nothrow_move_constructible_v<Snapshot>);
static_assert(std::equality_comparable<Snapshot>);

namespace {

const QString appsKey = u"persistent-apps"_s;
const QString recentsKey = u"show-recents"_s;

/// The sentence of the FileError that `function` throws, or nothing.
template <typename Function>
std::optional<QString> failureOf(Function function) {
    try {
        function();
    } catch (const FileError& error) {
        return error.description();
    }
    return std::nullopt;
}

QStringList ids(const QList<Snapshot>& snapshots) {
    QStringList result;
    for (const Snapshot& snapshot : snapshots)
        result.append(snapshot.id);
    return result;
}

QJsonObject record() {
    return {
        {u"id"_s, u"1714986900000-0A1B2C"_s},
        {u"date"_s, u"2024-05-06T09:15:00Z"_s},
        {u"reason"_s, u"Before Work"_s},
        {u"bundleIDs"_s, QJsonArray{u"a"_s, u"b"_s}},
        {u"signature"_s, QJsonArray{u"a"_s, u"smallSpacer"_s, u"b"_s}},
        {u"isOriginal"_s, false},
    };
}

} // namespace

class SnapshotStoreTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_world.reset(); }

    void capturesTheDock();
    void theDateIsReadWhenTheDockIsSaved();
    void namesSnapshotsByTimeAndChance();
    void writesPrivateFiles();
    void reopensWithWhatWasSaved();
    void savesTheSameBytesTwice();
    void keepsTheFortyNewest();
    void keepsTheOriginalAndTheFortyNewest();
    void originalStaysForEver();
    void firstOfSeveralOriginalsInTheListCounts();
    void previousSkipsTheCurrentLayout();
    void previousIsNothingWhenAllAreAlike();
    void removesASnapshotAndItsFile();
    void removingTheOriginalChangesNothing();
    void removingAnOriginalByAStaleRecordChangesNothing();
    void removingAnUnknownSnapshotChangesNothing();

    void restoresTheDock();
    void restoresWithoutRecentsByDeletingTheKey();
    void restoreOfAMissingFileThrowsBeforeAnything();
    void restoreOfADamagedFileThrowsBeforeAnything_data();
    void restoreOfADamagedFileThrowsBeforeAnything();
    void restoreNeedsItsSafetySnapshot();
    void refusedRestoreKeepsTheSafetySnapshot();

    void readsOneRecordStrictly_data();
    void readsOneRecordStrictly();
    void writesARecordAsItReadsIt();
    void dateOfAClockGoneWrongKeepsTheListReadable();
    void badIndexOpensEmpty_data();
    void badIndexOpensEmpty();
    void captureReplacesABadIndex();

    void failedStateFileChangesNothing();
    void failedIndexKeepsTheNewSnapshot();
    void failedIndexKeepsThePrunedFilesUntilTheNextSave();
    void failedIndexKeepsTheRemovedFileUntilTheNextSave();
    void listStaysWholeWhileAnotherThreadCaptures();

private:
    QString folder() const { return m_world->directory.filePath(u"Snapshots"_s); }
    QString path(const QString& name) const { return folder() + u'/' + name; }
    QString indexPath() const { return path(u"index.json"_s); }
    QStringList stateFiles() const { return QDir(folder()).entryList({u"*.plist"_s}, QDir::Files, QDir::Name); }
    void setDock(const QString& layout) { m_world->preferences.stored[appsKey] = apps(layout); }
    Snapshot capture(SnapshotStore& store, Mark mark = Mark::ordinary) {
        m_world->clock.advance(std::chrono::minutes(1));
        return store.capture(u"Before Work"_s, mark);
    }
    /// Whether every snapshot of the index on disk has its state file.
    bool diskAgrees() const;

    std::unique_ptr<Fakes::World> m_world;
};

void SnapshotStoreTest::init() {
    m_world = std::make_unique<Fakes::World>();
    m_world->preferences.stored = {
        {appsKey, apps(u"a _ b /d"_s)}, {recentsKey, {true}}, {u"orientation"_s, {u"left"_s}}};
    QVERIFY(QDir().mkpath(folder()));
}

bool SnapshotStoreTest::diskAgrees() const {
    const QStringList listed = ids(m_world->snapshotStore(folder()).all());
    return std::all_of(listed.cbegin(), listed.cend(),
                       [this](const QString& id) { return QFile::exists(path(id + u".plist"_s)); });
}

void SnapshotStoreTest::capturesTheDock() {
    SnapshotStore store = m_world->snapshotStore(folder());
    QVERIFY(store.all().isEmpty() && !store.original());
    const Snapshot snapshot = store.capture(u"Before Work"_s, Mark::ordinary);
    QCOMPARE(snapshot.reason, u"Before Work"_s);
    QCOMPARE(snapshot.date, m_world->clock.now());
    QCOMPARE(snapshot.bundleIDs, QStringList({u"a"_s, u"b"_s}));
    QCOMPARE(snapshot.signature, QStringList({u"a"_s, u"smallSpacer"_s, u"b"_s, u"file:///d"_s}));
    QVERIFY(!snapshot.isOriginal);
    QCOMPARE(store.all(), QList<Snapshot>{snapshot});
    QVERIFY(!store.original());
    QVERIFY((store.state(snapshot) == Dictionary{{appsKey, apps(u"a _ b /d"_s)}, {recentsKey, {true}}}));
    QVERIFY(contentOf(path(snapshot.id + u".plist"_s)).startsWith("bplist00"));
    QVERIFY(m_world->processes.runs.isEmpty());
}

void SnapshotStoreTest::theDateIsReadWhenTheDockIsSaved() {
    SnapshotStore store = m_world->snapshotStore(folder());
    m_world->clock.betweenLooks = std::chrono::seconds(1);
    const Snapshot snapshot = store.capture(u"Before Work"_s, Mark::ordinary);
    QCOMPARE(snapshot.date.toMSecsSinceEpoch() - snapshot.id.section(u'-', 0, 0).toLongLong(), 1000);
}

void SnapshotStoreTest::namesSnapshotsByTimeAndChance() {
    m_world->clock.set(QDateTime::fromMSecsSinceEpoch(1714986900987));
    SnapshotStore store = m_world->snapshotStore(folder());
    QSet<QString> seen;
    static const QRegularExpression form(u"^1714986900987-[0-9A-F]{6}$"_s);
    for (int round = 0; round < 20; ++round) {
        const QString id = store.capture(u"x"_s, Mark::ordinary).id;
        QVERIFY2(form.match(id).hasMatch(), qPrintable(id));
        seen.insert(id);
    }
    QCOMPARE(seen.size(), 20);
}

void SnapshotStoreTest::writesPrivateFiles() {
    SnapshotStore store = m_world->snapshotStore(folder());
    const Snapshot snapshot = capture(store);
    for (const QString& name : {u"index.json"_s, snapshot.id + u".plist"_s})
        QCOMPARE(QFile::permissions(path(name)) & ~(QFile::ReadUser | QFile::WriteUser),
                 QFile::ReadOwner | QFile::WriteOwner);
}

void SnapshotStoreTest::reopensWithWhatWasSaved() {
    SnapshotStore store = m_world->snapshotStore(folder());
    capture(store, Mark::original);
    setDock(u"c"_s);
    capture(store);
    const SnapshotStore reopened = m_world->snapshotStore(folder());
    QCOMPARE(reopened.all(), store.all());
    QCOMPARE(reopened.original(), store.all().last());
    QVERIFY((reopened.state(reopened.all().first()) == Dictionary{{appsKey, apps(u"c"_s)}, {recentsKey, {true}}}));
}

void SnapshotStoreTest::savesTheSameBytesTwice() {
    SnapshotStore store = m_world->snapshotStore(folder());
    const Snapshot first = capture(store);
    const Snapshot second = capture(store);
    QCOMPARE(contentOf(path(first.id + u".plist"_s)), contentOf(path(second.id + u".plist"_s)));
    const QByteArray index = contentOf(indexPath());
    store.remove(capture(store));
    QCOMPARE(contentOf(indexPath()), index);
}

void SnapshotStoreTest::keepsTheFortyNewest() {
    SnapshotStore store = m_world->snapshotStore(folder());
    QStringList captured;
    for (int count = 0; count < 41; ++count)
        captured.prepend(capture(store).id);
    QCOMPARE(ids(store.all()), captured.first(40));
    QVERIFY(!QFile::exists(path(captured.last() + u".plist"_s)));
    QCOMPARE(stateFiles().size(), 40);
    QCOMPARE(ids(m_world->snapshotStore(folder()).all()), captured.first(40));
}

void SnapshotStoreTest::keepsTheOriginalAndTheFortyNewest() {
    SnapshotStore store = m_world->snapshotStore(folder());
    const Snapshot original = capture(store, Mark::original);
    QStringList captured;
    for (int count = 0; count < 41; ++count)
        captured.prepend(capture(store).id);
    QCOMPARE(ids(store.all()), captured.first(40) + QStringList{original.id});
    QCOMPARE(stateFiles().size(), 41);
    QVERIFY(diskAgrees());
}

void SnapshotStoreTest::originalStaysForEver() {
    SnapshotStore store = m_world->snapshotStore(folder());
    const Snapshot original = capture(store, Mark::original);
    for (int count = 0; count < 100; ++count)
        capture(store);
    store.remove(original);
    QCOMPARE(store.all().last(), original);
    QCOMPARE(store.original(), original);
    QVERIFY(QFile::exists(path(original.id + u".plist"_s)));
}

void SnapshotStoreTest::firstOfSeveralOriginalsInTheListCounts() {
    SnapshotStore store = m_world->snapshotStore(folder());
    capture(store, Mark::original);
    const Snapshot second = capture(store, Mark::original);
    capture(store);
    QCOMPARE(store.original(), second);
}

void SnapshotStoreTest::previousSkipsTheCurrentLayout() {
    SnapshotStore store = m_world->snapshotStore(folder());
    capture(store);
    setDock(u"b a"_s);
    const Snapshot other = capture(store);
    setDock(u"a _ b /d"_s);
    capture(store);
    capture(store);
    QCOMPARE(store.previous(tiles(u"a _ b /d"_s)), other);
    QCOMPARE(store.previous(tiles(u"a _ b"_s)), store.all().first());
    QCOMPARE(store.previous({}), store.all().first());
}

void SnapshotStoreTest::previousIsNothingWhenAllAreAlike() {
    SnapshotStore store = m_world->snapshotStore(folder());
    QVERIFY(!store.previous(tiles(u"a"_s)));
    capture(store);
    capture(store);
    QVERIFY(!store.previous(tiles(u"a _ b /d"_s)));
}

void SnapshotStoreTest::removesASnapshotAndItsFile() {
    SnapshotStore store = m_world->snapshotStore(folder());
    const Snapshot first = capture(store);
    const Snapshot second = capture(store);
    store.remove(first);
    QCOMPARE(store.all(), QList<Snapshot>{second});
    QCOMPARE(stateFiles(), QStringList{second.id + u".plist"_s});
    QCOMPARE(ids(m_world->snapshotStore(folder()).all()), QStringList{second.id});
}

void SnapshotStoreTest::removingTheOriginalChangesNothing() {
    SnapshotStore store = m_world->snapshotStore(folder());
    const Snapshot original = capture(store, Mark::original);
    const QByteArray index = contentOf(indexPath());
    store.remove(original);
    QCOMPARE(store.all(), QList<Snapshot>{original});
    QCOMPARE(contentOf(indexPath()), index);
    QCOMPARE(stateFiles().size(), 1);
}

void SnapshotStoreTest::removingAnOriginalByAStaleRecordChangesNothing() {
    SnapshotStore store = m_world->snapshotStore(folder());
    Snapshot stale = capture(store, Mark::original);
    stale.isOriginal = false;
    store.remove(stale);
    QVERIFY(store.original());
    QCOMPARE(stateFiles().size(), 1);
}

void SnapshotStoreTest::removingAnUnknownSnapshotChangesNothing() {
    SnapshotStore store = m_world->snapshotStore(folder());
    capture(store);
    QVERIFY(put(m_world->directory.filePath(u"precious.plist"_s), "x"));
    store.remove(Snapshot{u"../precious"_s, {}, {}, {}, {}, false});
    QCOMPARE(store.all().size(), 1);
    QVERIFY(QFile::exists(m_world->directory.filePath(u"precious.plist"_s)));
}

void SnapshotStoreTest::restoresTheDock() {
    SnapshotStore store = m_world->snapshotStore(folder());
    const Dictionary before = m_world->preferences.stored;
    const Snapshot snapshot = capture(store);
    setDock(u"x y"_s);
    m_world->preferences.stored[recentsKey] = {false};
    store.restore(snapshot);
    QVERIFY(m_world->preferences.stored == before);
    QCOMPARE(store.all().size(), 2);
    QCOMPARE(store.all().first().reason, u"Before restoring"_s);
    QCOMPARE(store.all().first().bundleIDs, QStringList({u"x"_s, u"y"_s}));
    QVERIFY(!store.all().first().isOriginal);
    QCOMPARE(m_world->processes.runs.size(), 2);
}

void SnapshotStoreTest::restoresWithoutRecentsByDeletingTheKey() {
    m_world->preferences.stored.remove(recentsKey);
    SnapshotStore store = m_world->snapshotStore(folder());
    const Snapshot snapshot = capture(store);
    m_world->preferences.stored[recentsKey] = {true};
    store.restore(snapshot);
    QVERIFY(!m_world->preferences.stored.contains(recentsKey));
}

void SnapshotStoreTest::restoreOfAMissingFileThrowsBeforeAnything() {
    SnapshotStore store = m_world->snapshotStore(folder());
    const Snapshot snapshot = capture(store);
    const Dictionary before = m_world->preferences.stored;
    QVERIFY(QFile::remove(path(snapshot.id + u".plist"_s)));
    QCOMPARE(failureOf([&] { store.restore(snapshot); }),
             u"“%1.plist” could not be read: No such file or directory."_s.arg(snapshot.id));
    QCOMPARE(store.all(), QList<Snapshot>{snapshot});
    QVERIFY(m_world->preferences.stored == before);
    QVERIFY(m_world->processes.runs.isEmpty());
}

void SnapshotStoreTest::restoreOfADamagedFileThrowsBeforeAnything_data() {
    QTest::addColumn<QByteArray>("bytes");
    const PropertyList list{PropertyList::Array{{true}}};
    QTest::newRow("an empty file") << QByteArray();
    QTest::newRow("no property list") << QByteArray("hello");
    QTest::newRow("an array") << list.serialize(PropertyList::Format::binary);
    QTest::newRow("a truncated file") << list.serialize(PropertyList::Format::binary).chopped(1);
}

void SnapshotStoreTest::restoreOfADamagedFileThrowsBeforeAnything() {
    QFETCH(const QByteArray, bytes);
    SnapshotStore store = m_world->snapshotStore(folder());
    const Snapshot snapshot = capture(store);
    QVERIFY(put(path(snapshot.id + u".plist"_s), bytes));
    QCOMPARE(failureOf([&] { store.restore(snapshot); }),
             u"“%1.plist” could not be read: it is damaged."_s.arg(snapshot.id));
    QCOMPARE(store.all(), QList<Snapshot>{snapshot});
    QCOMPARE(m_world->preferences.saves, 0);
}

void SnapshotStoreTest::restoreNeedsItsSafetySnapshot() {
    SnapshotStore store = m_world->snapshotStore(folder());
    const Snapshot snapshot = capture(store);
    setDock(u"x"_s);
    const FullDisk disk(0);
    QVERIFY(failureOf([&] { store.restore(snapshot); }));
    QVERIFY(m_world->preferences.stored[appsKey] == apps(u"x"_s));
    QCOMPARE(m_world->preferences.saves, 0);
}

void SnapshotStoreTest::refusedRestoreKeepsTheSafetySnapshot() {
    SnapshotStore store = m_world->snapshotStore(folder());
    const Snapshot snapshot = capture(store);
    setDock(u"x"_s);
    m_world->preferences.refusesToSave = true;
    QVERIFY_EXCEPTION_THROWN(store.restore(snapshot), DockError);
    QCOMPARE(store.all().size(), 2);
    QCOMPARE(store.all().first().signature, QStringList{u"x"_s});
    QVERIFY(diskAgrees());
}

void SnapshotStoreTest::readsOneRecordStrictly_data() {
    Strictness::addRows(record(), {});
    const auto changed = [](const QString& key, const QJsonValue& value) {
        QJsonObject object = record();
        object[key] = value;
        return QJsonValue(object);
    };
    QTest::newRow("an offset instead of Z") << changed(u"date"_s, u"2024-05-06T11:15:00+02:00"_s) << true;
    QTest::newRow("empty lists and texts") << QJsonValue([] {
        QJsonObject object = record();
        object[u"reason"_s] = u""_s;
        object[u"bundleIDs"_s] = QJsonArray();
        object[u"signature"_s] = QJsonArray();
        return object;
    }()) << true;
    QTest::newRow("a fraction of a second") << changed(u"date"_s, u"2024-05-06T09:15:00.5Z"_s) << false;
    QTest::newRow("a date without a time") << changed(u"date"_s, u"2024-05-06"_s) << false;
}

void SnapshotStoreTest::readsOneRecordStrictly() {
    QFETCH(const QJsonValue, json);
    QTEST(Snapshot::fromJson(json).has_value(), "reads");
}

void SnapshotStoreTest::writesARecordAsItReadsIt() {
    const auto snapshot = Snapshot::fromJson(record());
    QVERIFY(snapshot);
    const Snapshot expected{u"1714986900000-0A1B2C"_s,
                            QDateTime(QDate(2024, 5, 6), QTime(9, 15), Qt::UTC),
                            u"Before Work"_s,
                            {u"a"_s, u"b"_s},
                            {u"a"_s, u"smallSpacer"_s, u"b"_s},
                            false};
    QCOMPARE(*snapshot, expected);
    QCOMPARE(snapshot->toJson(), QJsonValue(record()));
}

void SnapshotStoreTest::dateOfAClockGoneWrongKeepsTheListReadable() {
    m_world->clock.set(QDateTime(QDate(10000, 1, 1), QTime(12, 0), Qt::UTC));
    SnapshotStore store = m_world->snapshotStore(folder());
    const Snapshot snapshot = capture(store);
    const QList<Snapshot> read = m_world->snapshotStore(folder()).all();
    QCOMPARE(ids(read), QStringList{snapshot.id});
    QCOMPARE(read.first().date, QDateTime(QDate(9999, 12, 31), QTime(23, 59, 59), Qt::UTC));
}

void SnapshotStoreTest::badIndexOpensEmpty_data() {
    QTest::addColumn<QByteArray>("index");
    const auto index = [](const QJsonValue& value) { return QJsonDocument(value.toArray()).toJson(); };
    QTest::newRow("an empty file") << QByteArray();
    QTest::newRow("broken JSON") << QByteArray("[{\"id\": ");
    QTest::newRow("an object") << QByteArray("{}");
    QJsonObject bad = record();
    bad.remove(u"reason"_s);
    QTest::newRow("one bad record among good ones") << index(QJsonArray{record(), bad, record()});
    for (const QString& id : {u""_s, u"."_s, u".."_s, u"../x"_s, u"a/b"_s, u".hidden"_s, u"/etc/x"_s}) {
        QJsonObject escaping = record();
        escaping[u"id"_s] = id;
        QTest::addRow("the id \"%s\" is no file name", qPrintable(id)) << index(QJsonArray{record(), escaping});
    }
}

void SnapshotStoreTest::badIndexOpensEmpty() {
    QFETCH(const QByteArray, index);
    QVERIFY(put(indexPath(), index));
    const SnapshotStore store = m_world->snapshotStore(folder());
    QVERIFY(store.all().isEmpty());
    QVERIFY(!store.original());
    QCOMPARE(contentOf(indexPath()), index);
}

void SnapshotStoreTest::captureReplacesABadIndex() {
    SnapshotStore first = m_world->snapshotStore(folder());
    const Snapshot old = capture(first);
    QVERIFY(put(indexPath(), "broken"));
    SnapshotStore store = m_world->snapshotStore(folder());
    const Snapshot fresh = capture(store);
    QCOMPARE(ids(m_world->snapshotStore(folder()).all()), QStringList{fresh.id});
    QCOMPARE(stateFiles(), QStringList({old.id + u".plist"_s, fresh.id + u".plist"_s}));
}

void SnapshotStoreTest::failedStateFileChangesNothing() {
    SnapshotStore store = m_world->snapshotStore(folder());
    const Snapshot snapshot = capture(store);
    const QByteArray index = contentOf(indexPath());
    {
        const FullDisk disk(32);
        const auto failure = failureOf([&] { capture(store); });
        QVERIFY(failure && failure->contains(u".plist” could not be saved: "));
    }
    QCOMPARE(store.all(), QList<Snapshot>{snapshot});
    QCOMPARE(contentOf(indexPath()), index);
    QCOMPARE(QDir(folder()).entryList(QDir::Files | QDir::Hidden).size(), 2);

    QVERIFY(QDir(folder()).removeRecursively());
    QVERIFY(failureOf([&] { capture(store); }));
    QCOMPARE(store.all(), QList<Snapshot>{snapshot});
}

void SnapshotStoreTest::failedIndexKeepsTheNewSnapshot() {
    SnapshotStore store = m_world->snapshotStore(folder());
    const Snapshot first = capture(store);
    QVERIFY(QFile::remove(indexPath()) && QDir().mkdir(indexPath()));
    const auto failure = failureOf([&] { capture(store); });
    QVERIFY(failure && failure->startsWith(u"“index.json” could not be saved: "));
    QCOMPARE(store.all().size(), 2);
    QCOMPARE(store.all().last(), first);
    QCOMPARE(stateFiles().size(), 2);

    QVERIFY(QDir().rmdir(indexPath()));
    capture(store);
    QCOMPARE(m_world->snapshotStore(folder()).all().size(), 3);
    QVERIFY(diskAgrees());
}

void SnapshotStoreTest::failedIndexKeepsThePrunedFilesUntilTheNextSave() {
    SnapshotStore store = m_world->snapshotStore(folder());
    for (int count = 0; count < 40; ++count)
        capture(store);
    const QStringList listed = ids(store.all());
    const qint64 stateSize = QFileInfo(path(listed.first() + u".plist"_s)).size();
    QVERIFY(stateSize < 2000 && QFileInfo(indexPath()).size() > 4000);
    {
        // Room for a state file, but not for the index.
        const FullDisk disk(2000);
        QVERIFY(failureOf([&] { capture(store); }));
        QVERIFY(failureOf([&] { capture(store); }));
    }
    QCOMPARE(store.all().size(), 40);
    QCOMPARE(ids(m_world->snapshotStore(folder()).all()), listed);
    QVERIFY(diskAgrees());
    QCOMPARE(stateFiles().size(), 42);

    capture(store);
    QCOMPARE(stateFiles().size(), 40);
    QCOMPARE(ids(m_world->snapshotStore(folder()).all()), ids(store.all()));
    QVERIFY(diskAgrees());
}

void SnapshotStoreTest::failedIndexKeepsTheRemovedFileUntilTheNextSave() {
    SnapshotStore store = m_world->snapshotStore(folder());
    const Snapshot first = capture(store);
    const Snapshot second = capture(store);
    {
        const FullDisk disk(0);
        store.remove(first);
    }
    QCOMPARE(store.all(), QList<Snapshot>{second});
    QCOMPARE(ids(m_world->snapshotStore(folder()).all()), ids({second, first}));
    QVERIFY(diskAgrees());
    store.remove(second);
    QVERIFY(store.all().isEmpty() && stateFiles().isEmpty());
    QVERIFY(m_world->snapshotStore(folder()).all().isEmpty());
}

void SnapshotStoreTest::listStaysWholeWhileAnotherThreadCaptures() {
    SnapshotStore store = m_world->snapshotStore(folder());
    std::atomic<bool> isDone = false;
    std::thread writer([&] {
        for (int count = 0; count < 60; ++count)
            capture(store, count == 0 ? Mark::original : Mark::ordinary);
        isDone = true;
    });
    bool isWhole = true;
    while (!isDone) {
        const QList<Snapshot> all = store.all();
        isWhole = isWhole && all.size() <= 41 && (all.isEmpty() || all.last().isOriginal);
        isWhole = isWhole && std::is_sorted(all.crbegin(), all.crend(),
                                            [](const Snapshot& a, const Snapshot& b) { return a.date < b.date; });
        store.previous(tiles(u"a"_s));
    }
    writer.join();
    QVERIFY(isWhole);
    QCOMPARE(store.all().size(), 41);
}

QTEST_GUILESS_MAIN(SnapshotStoreTest)

#include "SnapshotStoreTest.moc"
