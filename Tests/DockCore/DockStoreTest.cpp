#include "DockCore/DockStore.h"

#include "Support/DockNotation.h"
#include "Support/FakeServices.h"
#include "Support/Files.h"
#include "Support/FullDisk.h"

#include <QtTest>

#include <atomic>
#include <chrono>
#include <memory>
#include <semaphore>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using DockCore::DockChanges;
using DockCore::DockError;
using DockCore::DockState;
using DockCore::DockTile;
using DockCore::layoutSignature;
using DockCore::PropertyList;
using DockNotation::apps;
using DockNotation::tiles;
using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;
using Run = Fakes::Processes::Run;
using Files::contentOf;
using Files::put;

using DockCore::DockStore;

Q_DECLARE_METATYPE(DockCore::PropertyList)

namespace {

const QString appsKey = u"persistent-apps"_s;
const QString othersKey = u"persistent-others"_s;
const QString recentsKey = u"show-recents"_s;
const Run killDock = {u"/usr/bin/killall"_s, {u"Dock"_s}};
const Run probeDock = {u"/usr/bin/pgrep"_s, {u"-x"_s, u"Dock"_s}};

/// What `function` throws as a DockError, or nothing.
template <typename Function>
std::optional<DockError::Kind> thrownBy(Function function) {
    try {
        function();
    } catch (const DockError& error) {
        return error.kind();
    }
    return std::nullopt;
}

} // namespace

class DockStoreTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_world.reset(); }

    void namesItsKeysInOrder();
    void errorsCarryTheirSentences();

    void readsFreshValues();
    void readsTiles_data();
    void readsTiles();
    void capturesTheKeysThatExist();
    void writesOnlyTheApplications();
    void writesDictionariesUnchanged();
    void writesAnEmptyList();
    void restoresDeletingWhatTheStateLacks();
    void restoresAStateWithAMalformedList();
    void setNeitherRestartsNorVerifies();

    void writesAgainWhileTheDockReverts_data();
    void writesAgainWhileTheDockReverts();
    void refusedWriteThrowsAtOnce();
    void refusedSecondWriteThrows();
    void aReaderBetweenSettingAndSavingDoesNotSwallowTheRefusal();
    void mismatchAfterWritingThrowsWithoutARestart();
    void restartsWhetherOrNotKillallWorks();
    void knowsWhetherTheDockRuns_data();
    void knowsWhetherTheDockRuns();
    void waitsForTheDock_data();
    void waitsForTheDock();
    void settingTheWallClockDoesNotProlongTheWait();

    void dryRunIsDecidedAtEveryCall();
    void dryRunWithoutANameNeverReachesTheDock();
    void firstDryRunReadSeedsTheFile();
    void dryRunCaptureSeedsTheFile();
    void seedingTakesFreshValues();
    void dryRunWritesChangeTheFileOnly();
    void dryRunMismatchThrows();
    void dryRunRestoreDeletesWhatTheStateLacks();
    void dryRunSetDoesNotSeed();
    void dryRunReadsBothFormatsAndWritesXML_data();
    void dryRunReadsBothFormatsAndWritesXML();
    void dryRunKeepsThePermissionsOfTheFile();
    void dryRunMakesAPrivateFile();
    void dryRunFollowsALink();
    void hostileDryRunFileReadsAsNoDock_data();
    void hostileDryRunFileReadsAsNoDock();
    void anUnreadableDryRunFileIsReplacedByAWrite();
    void dryRunFileThatCannotBeMade();
    void fullDiskLeavesTheDryRunFileAsItWas();
    void whatXMLCannotHoldLeavesTheDryRunFileAsItWas();

private:
    QString dryRunPath() const { return m_world->directory.filePath(u"dock.plist"_s); }
    void startDryRun(const QString& path) const { qputenv("KELVANE_DRY_RUN", QFile::encodeName(path)); }
    qsizetype restarts() const { return m_world->processes.runs.count(killDock); }

    std::unique_ptr<Fakes::World> m_world;
};

void DockStoreTest::init() {
    m_world = std::make_unique<Fakes::World>();
    m_world->preferences.stored = {{appsKey, apps(u"a b _ c"_s)},
                                   {othersKey, apps(u"/Downloads"_s)},
                                   {recentsKey, {false}},
                                   {u"orientation"_s, {u"left"_s}}};
}

void DockStoreTest::namesItsKeysInOrder() {
    QCOMPARE(DockStore::snapshotKeys(), QStringList({appsKey, othersKey, recentsKey}));
}

void DockStoreTest::errorsCarryTheirSentences() {
    QCOMPARE(DockError(DockError::Kind::writeFailed).description(), u"macOS refused to save the Dock settings."_s);
    QCOMPARE(DockError(DockError::Kind::verifyFailed).description(),
             u"The Dock settings did not stick. Nothing was changed."_s);
}

void DockStoreTest::readsFreshValues() {
    QVERIFY(m_world->dockStore.value(recentsKey) == PropertyList{false});
    const int before = m_world->preferences.synchronizations;
    m_world->preferences.stored[recentsKey] = {true};
    QVERIFY(m_world->dockStore.value(recentsKey) == PropertyList{true});
    QCOMPARE(m_world->preferences.synchronizations, before + 1);
    QVERIFY(!m_world->dockStore.value(u"mod-count"_s));
}

void DockStoreTest::readsTiles_data() {
    QTest::addColumn<PropertyList>("value");
    QTest::addColumn<QString>("signature");
    QTest::newRow("tiles in order") << apps(u"a _ b"_s) << u"a smallSpacer b"_s;
    QTest::newRow("no tiles") << apps(u""_s) << u""_s;
    PropertyList mixed = apps(u"a b"_s);
    std::get<Array>(mixed.value).insert(1, PropertyList{u"c"_s});
    QTest::newRow("one element is no dictionary") << mixed << u""_s;
    QTest::newRow("a dictionary") << PropertyList{Dictionary{{u"a"_s, apps(u"a"_s)}}} << u""_s;
    QTest::newRow("a string") << PropertyList{u"a"_s} << u""_s;
    QTest::newRow("an integer") << PropertyList{qint64(5)} << u""_s;
    QTest::newRow("data") << PropertyList{QByteArray("a")} << u""_s;
}

void DockStoreTest::readsTiles() {
    QFETCH(const PropertyList, value);
    m_world->preferences.stored[appsKey] = value;
    QTEST(layoutSignature(m_world->dockStore.currentTiles()).join(u' '), "signature");
    m_world->preferences.stored.remove(appsKey);
    QVERIFY(m_world->dockStore.currentTiles().isEmpty());
}

void DockStoreTest::capturesTheKeysThatExist() {
    Dictionary expected = m_world->preferences.stored;
    expected.remove(u"orientation"_s);
    QVERIFY(m_world->dockStore.capture() == expected);
    m_world->preferences.stored.remove(recentsKey);
    expected.remove(recentsKey);
    QVERIFY(m_world->dockStore.capture() == expected);
    m_world->preferences.stored.clear();
    QVERIFY(m_world->dockStore.capture().isEmpty());
}

void DockStoreTest::writesOnlyTheApplications() {
    Dictionary expected = m_world->preferences.stored;
    expected[appsKey] = apps(u"c | a"_s);
    m_world->dockStore.write(tiles(u"c | a"_s));
    QVERIFY(m_world->preferences.stored == expected);
    QCOMPARE(m_world->preferences.saves, 1);
    QCOMPARE(restarts(), 1);
}

void DockStoreTest::writesDictionariesUnchanged() {
    QList<DockTile> list = tiles(u"a b c"_s);
    list[1].raw.insert(u"unknown"_s, {Array{{1ULL << 63}, {PropertyList::UID{3}}, {0.1}, {QByteArray("\0x", 2)}}});
    const QList<Dictionary> before = {list[2].raw, list[1].raw, list[0].raw};
    std::reverse(list.begin(), list.end());
    m_world->dockStore.write(list);
    const Array written = *m_world->preferences.stored[appsKey].array();
    QCOMPARE(written.size(), 3);
    for (qsizetype index = 0; index < 3; ++index)
        QVERIFY(*written[index].dictionary() == before[index]);
}

void DockStoreTest::writesAnEmptyList() {
    m_world->dockStore.write({});
    QVERIFY(m_world->preferences.stored[appsKey] == PropertyList{Array()});
    QCOMPARE(restarts(), 1);
}

void DockStoreTest::restoresDeletingWhatTheStateLacks() {
    m_world->dockStore.restore({{appsKey, apps(u"c"_s)}, {othersKey, apps(u"/x"_s)}});
    const Dictionary expected = {{appsKey, apps(u"c"_s)}, {othersKey, apps(u"/x"_s)}, {u"orientation"_s, {u"left"_s}}};
    QVERIFY(m_world->preferences.stored == expected);
    QCOMPARE(restarts(), 1);
    m_world->dockStore.restore({});
    QVERIFY((m_world->preferences.stored == Dictionary{{u"orientation"_s, {u"left"_s}}}));
}

void DockStoreTest::restoresAStateWithAMalformedList() {
    m_world->dockStore.restore({{appsKey, {u"none"_s}}});
    QVERIFY(m_world->preferences.stored[appsKey] == PropertyList{u"none"_s});
    QCOMPARE(restarts(), 1);
}

void DockStoreTest::setNeitherRestartsNorVerifies() {
    m_world->dockStore.set({{appsKey, PropertyList{u"none"_s}}, {recentsKey, std::nullopt}});
    QVERIFY(m_world->preferences.stored[appsKey] == PropertyList{u"none"_s});
    QVERIFY(!m_world->preferences.stored.contains(recentsKey));
    QVERIFY(m_world->processes.runs.isEmpty());
    QVERIFY(m_world->clock.sleeps.isEmpty());
}

void DockStoreTest::writesAgainWhileTheDockReverts_data() {
    QTest::addColumn<int>("reverts");
    QTest::addColumn<int>("restarts");
    QTest::addColumn<bool>("holds");
    QTest::newRow("the Dock takes the list at once") << 0 << 1 << true;
    QTest::newRow("the Dock writes its older list back once") << 1 << 2 << true;
    QTest::newRow("the Dock writes its older list back twice") << 2 << 3 << true;
    QTest::newRow("the Dock keeps reverting: three restarts and three writes") << 3 << 3 << false;
    QTest::newRow("the Dock would revert for ever") << 100 << 3 << false;
}

void DockStoreTest::writesAgainWhileTheDockReverts() {
    QFETCH(const int, reverts);
    QFETCH(const int, restarts);
    QFETCH(const bool, holds);
    int left = reverts;
    m_world->processes.answer = [this, &left](const Run& run) -> std::optional<int> {
        if (run == killDock && left-- > 0)
            m_world->preferences.stored[appsKey] = apps(u"a b _ c"_s);
        return 0;
    };
    const auto thrown = thrownBy([this] { m_world->dockStore.write(tiles(u"c b a"_s)); });
    QCOMPARE(thrown, holds ? std::nullopt : std::optional(DockError::Kind::verifyFailed));
    QCOMPARE(this->restarts(), restarts);
    QCOMPARE(m_world->preferences.saves, restarts);
    QCOMPARE(layoutSignature(m_world->dockStore.currentTiles()),
             layoutSignature(tiles(holds ? u"c b a"_s : u"a b _ c"_s)));
}

void DockStoreTest::refusedWriteThrowsAtOnce() {
    m_world->preferences.refusesToSave = true;
    const Dictionary before = m_world->preferences.stored;
    QCOMPARE(thrownBy([this] { m_world->dockStore.write(tiles(u"c"_s)); }), DockError::Kind::writeFailed);
    QCOMPARE(thrownBy([this] {
                 m_world->dockStore.set({{recentsKey, PropertyList{true}}});
             }),
             DockError::Kind::writeFailed);
    QVERIFY(m_world->preferences.stored == before);
    QVERIFY(m_world->processes.runs.isEmpty());
}

void DockStoreTest::refusedSecondWriteThrows() {
    m_world->processes.answer = [this](const Run& run) -> std::optional<int> {
        if (run == killDock) {
            m_world->preferences.stored[appsKey] = apps(u"a"_s);
            m_world->preferences.refusesToSave = true;
        }
        return 0;
    };
    QCOMPARE(thrownBy([this] { m_world->dockStore.write(tiles(u"c"_s)); }), DockError::Kind::writeFailed);
    QCOMPARE(restarts(), 1);
}

void DockStoreTest::aReaderBetweenSettingAndSavingDoesNotSwallowTheRefusal() {
    m_world->preferences.refusesToSave = true;
    m_world->preferences.afterSet = [] {
        for (int turn = 0; turn < 1000; ++turn)
            std::this_thread::yield();
    };
    std::binary_semaphore reads(0);
    std::atomic<bool> isOver = false;
    std::thread reader([&] {
        m_world->dockStore.currentTiles();
        reads.release();
        while (!isOver)
            m_world->dockStore.currentTiles();
    });
    const auto end = qScopeGuard([&] {
        isOver = true;
        reader.join();
    });
    reads.acquire();
    for (int round = 0; round < 100; ++round)
        QCOMPARE(thrownBy([this] { m_world->dockStore.set({{appsKey, apps(u"b"_s)}}); }), DockError::Kind::writeFailed);
}

void DockStoreTest::mismatchAfterWritingThrowsWithoutARestart() {
    const auto thrown = thrownBy([this] { m_world->dockStore.apply({{appsKey, apps(u"a b"_s)}}, {u"b"_s, u"a"_s}); });
    QCOMPARE(thrown, DockError::Kind::verifyFailed);
    QVERIFY(m_world->processes.runs.isEmpty());
}

void DockStoreTest::restartsWhetherOrNotKillallWorks() {
    for (const std::optional<int> answer : {std::optional(0), std::optional(1), std::optional<int>()}) {
        m_world->processes.runs.clear();
        m_world->processes.answer = [answer](const Run&) { return answer; };
        m_world->dockStore.restartDock();
        QCOMPARE(m_world->processes.runs, QList<Run>{killDock});
    }
}

void DockStoreTest::knowsWhetherTheDockRuns_data() {
    QTest::addColumn<int>("status");
    QTest::addColumn<bool>("isRunning");
    QTest::newRow("a process is found") << 0 << true;
    QTest::newRow("no process is found") << 1 << false;
    QTest::newRow("the probe fails") << 3 << false;
    QTest::newRow("the probe cannot be started") << -1 << false;
}

void DockStoreTest::knowsWhetherTheDockRuns() {
    QFETCH(const int, status);
    m_world->processes.answer = [status](const Run&) { return status < 0 ? std::nullopt : std::optional(status); };
    QTEST(m_world->dockStore.isDockRunning(), "isRunning");
    QCOMPARE(m_world->processes.runs, QList<Run>{probeDock});
}

void DockStoreTest::waitsForTheDock_data() {
    QTest::addColumn<int>("missedProbes");
    QTest::addColumn<int>("waits");
    QTest::addColumn<int>("milliseconds");
    QTest::newRow("the Dock is back at once") << 0 << 0 << 1800;
    QTest::newRow("the Dock is back at the third probe") << 2 << 2 << 2200;
    QTest::newRow("the Dock is back at the last probe") << 21 << 21 << 6000;
    QTest::newRow("the Dock does not come back") << 1000 << 22 << 6200;
}

void DockStoreTest::waitsForTheDock() {
    QFETCH(const int, missedProbes);
    QFETCH(const int, waits);
    QFETCH(const int, milliseconds);
    int left = missedProbes;
    m_world->processes.answer = [&left](const Run&) { return left-- > 0 ? 1 : 0; };
    const auto before = m_world->clock.elapsed();
    m_world->dockStore.waitForDock();
    QCOMPARE(m_world->clock.elapsed() - before, std::chrono::nanoseconds(std::chrono::milliseconds(milliseconds)));
    QList<std::chrono::milliseconds> expected(waits, 200ms);
    expected.prepend(600ms);
    expected.append(1200ms);
    QCOMPARE(m_world->clock.sleeps, expected);
    QCOMPARE(m_world->processes.runs.count(probeDock), std::min(missedProbes + 1, 22));
    QCOMPARE(restarts(), 0);
}

void DockStoreTest::settingTheWallClockDoesNotProlongTheWait() {
    m_world->processes.answer = [this](const Run&) {
        m_world->clock.set(m_world->clock.now().addDays(-1));
        return 1;
    };
    m_world->dockStore.waitForDock();
    QCOMPARE(m_world->clock.sleeps.size(), 24);
}

void DockStoreTest::dryRunIsDecidedAtEveryCall() {
    QVERIFY(!DockStore::isDryRun() && !DockStore::dryRunFile());
    startDryRun(u"/x/dock.plist"_s);
    QVERIFY(DockStore::isDryRun());
    QCOMPARE(DockStore::dryRunFile(), u"/x/dock.plist"_s);
    m_world->dockStore.restartDock();
    QVERIFY(m_world->processes.runs.isEmpty());
    qunsetenv("KELVANE_DRY_RUN");
    QVERIFY(!DockStore::isDryRun());
    m_world->dockStore.restartDock();
    QCOMPARE(restarts(), 1);
}

void DockStoreTest::dryRunWithoutANameNeverReachesTheDock() {
    qputenv("KELVANE_DRY_RUN", "");
    const Dictionary before = m_world->preferences.stored;
    QVERIFY(DockStore::isDryRun());
    QVERIFY(m_world->dockStore.currentTiles().isEmpty());
    QCOMPARE(thrownBy([this] { m_world->dockStore.write(tiles(u"c"_s)); }), DockError::Kind::writeFailed);
    QVERIFY(m_world->preferences.stored == before);
    QVERIFY(m_world->processes.runs.isEmpty());
}

void DockStoreTest::firstDryRunReadSeedsTheFile() {
    m_world->preferences.stored.remove(othersKey);
    startDryRun(dryRunPath());
    QCOMPARE(layoutSignature(m_world->dockStore.currentTiles()), layoutSignature(tiles(u"a b _ c"_s)));
    const Dictionary expected = {{appsKey, apps(u"a b _ c"_s)}, {recentsKey, {false}}};
    QVERIFY(PropertyList::readDictionary(dryRunPath()) == expected);
    QVERIFY(contentOf(dryRunPath()).startsWith("<?xml"));

    m_world->preferences.stored[appsKey] = apps(u"other"_s);
    m_world->dockStore.write(tiles(u"c a"_s));
    QCOMPARE(layoutSignature(m_world->dockStore.currentTiles()), layoutSignature(tiles(u"c a"_s)));
    QVERIFY(m_world->preferences.stored[appsKey] == apps(u"other"_s));
    QCOMPARE(m_world->preferences.saves, 0);
    QVERIFY(m_world->processes.runs.isEmpty());
    QVERIFY(m_world->clock.sleeps.isEmpty());
}

void DockStoreTest::dryRunCaptureSeedsTheFile() {
    startDryRun(dryRunPath());
    QCOMPARE(m_world->dockStore.capture().keys(), QStringList({appsKey, othersKey, recentsKey}));
    QVERIFY(QFile::exists(dryRunPath()));
}

void DockStoreTest::seedingTakesFreshValues() {
    const int before = m_world->preferences.synchronizations;
    m_world->dockStore.seedDryRun(dryRunPath());
    QCOMPARE(m_world->preferences.synchronizations, before + 1);
}

void DockStoreTest::dryRunWritesChangeTheFileOnly() {
    const Dictionary other = {{appsKey, apps(u"a"_s)},
                              {u"orientation"_s, {u"left"_s}},
                              {u"when"_s, {PropertyList::Date{5}}},
                              {u"large"_s, {1ULL << 63}},
                              {u"deep"_s, {Array{{Dictionary{{u"é"_s, {PropertyList::UID{5}}}}}, {QByteArray()}}}}};
    QVERIFY(put(dryRunPath(), PropertyList{other}.serialize(PropertyList::Format::xml)));
    startDryRun(dryRunPath());
    m_world->dockStore.write(tiles(u"x | y"_s));
    Dictionary expected = other;
    expected[appsKey] = apps(u"x | y"_s);
    QVERIFY(PropertyList::readDictionary(dryRunPath()) == expected);
    QCOMPARE(m_world->preferences.synchronizations, 0);
}

void DockStoreTest::dryRunMismatchThrows() {
    startDryRun(dryRunPath());
    const auto thrown = thrownBy([this] { m_world->dockStore.apply({{appsKey, apps(u"a b"_s)}}, {u"b"_s, u"a"_s}); });
    QCOMPARE(thrown, DockError::Kind::verifyFailed);
    QVERIFY(m_world->processes.runs.isEmpty());
}

void DockStoreTest::dryRunRestoreDeletesWhatTheStateLacks() {
    startDryRun(dryRunPath());
    m_world->dockStore.capture();
    m_world->dockStore.restore({{appsKey, apps(u"c"_s)}});
    QVERIFY((PropertyList::readDictionary(dryRunPath()) == Dictionary{{appsKey, apps(u"c"_s)}}));
}

void DockStoreTest::dryRunSetDoesNotSeed() {
    startDryRun(dryRunPath());
    m_world->dockStore.set({{recentsKey, PropertyList{true}}, {othersKey, std::nullopt}});
    QVERIFY((PropertyList::readDictionary(dryRunPath()) == Dictionary{{recentsKey, {true}}}));
    QCOMPARE(m_world->preferences.synchronizations, 0);
}

void DockStoreTest::dryRunReadsBothFormatsAndWritesXML_data() {
    QTest::addColumn<int>("format");
    QTest::newRow("an XML file") << int(PropertyList::Format::xml);
    QTest::newRow("a binary file") << int(PropertyList::Format::binary);
}

void DockStoreTest::dryRunReadsBothFormatsAndWritesXML() {
    QFETCH(const int, format);
    const Dictionary contents = {{appsKey, apps(u"a _ b"_s)}, {u"loc"_s, {u"de_DE"_s}}};
    QVERIFY(put(dryRunPath(), PropertyList{contents}.serialize(static_cast<PropertyList::Format>(format))));
    startDryRun(dryRunPath());
    QCOMPARE(layoutSignature(m_world->dockStore.currentTiles()), layoutSignature(tiles(u"a _ b"_s)));
    m_world->dockStore.write(tiles(u"b a"_s));
    QVERIFY(contentOf(dryRunPath()).startsWith("<?xml"));
    QVERIFY(m_world->dockStore.value(u"loc"_s) == PropertyList{u"de_DE"_s});
}

void DockStoreTest::dryRunKeepsThePermissionsOfTheFile() {
    QVERIFY(put(dryRunPath(), PropertyList{Dictionary()}.serialize(PropertyList::Format::xml)));
    const auto permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
    QVERIFY(QFile::setPermissions(dryRunPath(), permissions));
    startDryRun(dryRunPath());
    m_world->dockStore.write(tiles(u"a"_s));
    QCOMPARE(QFile::permissions(dryRunPath()) & ~(QFile::ReadUser | QFile::WriteUser), permissions);
}

void DockStoreTest::dryRunMakesAPrivateFile() {
    startDryRun(dryRunPath());
    m_world->dockStore.currentTiles();
    QCOMPARE(QFile::permissions(dryRunPath()) & ~(QFile::ReadUser | QFile::WriteUser),
             QFile::ReadOwner | QFile::WriteOwner);
}

void DockStoreTest::dryRunFollowsALink() {
    const QString real = m_world->directory.filePath(u"real.plist"_s);
    QVERIFY(put(real, PropertyList{Dictionary()}.serialize(PropertyList::Format::xml)));
    QVERIFY(QFile::link(real, dryRunPath()));
    startDryRun(dryRunPath());
    m_world->dockStore.write(tiles(u"a"_s));
    QVERIFY(QFileInfo(dryRunPath()).isSymLink());
    QVERIFY((PropertyList::readDictionary(real) == Dictionary{{appsKey, apps(u"a"_s)}}));
}

void DockStoreTest::hostileDryRunFileReadsAsNoDock_data() {
    QTest::addColumn<QByteArray>("bytes");
    const PropertyList dock{Dictionary{{appsKey, apps(u"a b"_s)}, {recentsKey, {true}}}};
    QTest::newRow("an empty file") << QByteArray();
    QTest::newRow("no property list") << QByteArray("{\"persistent-apps\": []}");
    QTest::newRow("a truncated XML file") << dock.serialize(PropertyList::Format::xml).chopped(60);
    QTest::newRow("a truncated binary file") << dock.serialize(PropertyList::Format::binary).chopped(10);
    QTest::newRow("an array at the top") << PropertyList{Array{dock}}.serialize(PropertyList::Format::xml);
    QTest::newRow("10,000 levels") << "<plist><dict><key>persistent-apps</key>" +
                                          QByteArray("<array>").repeated(10'000) +
                                          QByteArray("</array>").repeated(10'000) + "</dict></plist>";
}

void DockStoreTest::hostileDryRunFileReadsAsNoDock() {
    QFETCH(const QByteArray, bytes);
    QVERIFY(put(dryRunPath(), bytes));
    startDryRun(dryRunPath());
    QVERIFY(m_world->dockStore.currentTiles().isEmpty());
    QVERIFY(m_world->dockStore.capture().isEmpty());
    QVERIFY(!m_world->dockStore.value(recentsKey));
    QCOMPARE(contentOf(dryRunPath()), bytes);
}

void DockStoreTest::anUnreadableDryRunFileIsReplacedByAWrite() {
    QVERIFY(put(dryRunPath(), "nonsense"));
    startDryRun(dryRunPath());
    m_world->dockStore.write(tiles(u"a"_s));
    QVERIFY((PropertyList::readDictionary(dryRunPath()) == Dictionary{{appsKey, apps(u"a"_s)}}));
}

void DockStoreTest::dryRunFileThatCannotBeMade() {
    QVERIFY(put(dryRunPath(), "a file, not a folder"));
    for (const QString& path : {dryRunPath() + u"/dock.plist"_s, m_world->directory.path()}) {
        startDryRun(path);
        m_world->dockStore.seedDryRun(path);
        QVERIFY(m_world->dockStore.currentTiles().isEmpty());
        QCOMPARE(thrownBy([this] { m_world->dockStore.write(tiles(u"a"_s)); }), DockError::Kind::writeFailed);
    }
    QCOMPARE(contentOf(dryRunPath()), "a file, not a folder");
}

void DockStoreTest::fullDiskLeavesTheDryRunFileAsItWas() {
    startDryRun(dryRunPath());
    m_world->dockStore.write(tiles(u"a"_s));
    const QByteArray before = contentOf(dryRunPath());
    {
        const FullDisk disk(64);
        QCOMPARE(thrownBy([this] { m_world->dockStore.write(tiles(u"b"_s)); }), DockError::Kind::writeFailed);
    }
    QCOMPARE(contentOf(dryRunPath()), before);
    QCOMPARE(QDir(m_world->directory.path()).entryList(QDir::Files), QStringList{u"dock.plist"_s});
}

void DockStoreTest::whatXMLCannotHoldLeavesTheDryRunFileAsItWas() {
    startDryRun(dryRunPath());
    m_world->dockStore.write(tiles(u"a"_s));
    const QByteArray before = contentOf(dryRunPath());
    QCOMPARE(thrownBy([this] {
                 m_world->dockStore.set({{recentsKey, PropertyList{u"\u0001"_s}}});
             }),
             DockError::Kind::writeFailed);
    QCOMPARE(contentOf(dryRunPath()), before);
}

QTEST_GUILESS_MAIN(DockStoreTest)

#include "DockStoreTest.moc"
