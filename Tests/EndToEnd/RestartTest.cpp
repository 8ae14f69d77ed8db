#include "DockCore/DockStore.h"
#include "DockCore/Services.h"
#include "Platform/Linux/LinuxServices.h"
#include "Support/DockNotation.h"
#include "Support/Files.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;
using DockCore::DockError;
using DockCore::layoutSignature;
using DockCore::PropertyList;
using DockNotation::apps;
using DockNotation::tiles;
using Dictionary = PropertyList::Dictionary;
using Files::put;

using DockCore::DockStore;

namespace {

const QString before = u"a b _ c"_s;
const QString after = u"c | b /d"_s;

/// A folder in which a process named Dock lives, and is started again whenever it ends, as the system does with the
/// Dock.
class LivingDock {
public:
    explicit LivingDock(int reverts) {
        const QByteArray older = dock(before).serialize(PropertyList::Format::binary);
        QDir(m_folder.path()).mkdir(u"preferences"_s);
        m_isReady = put(preferences(), older) && put(file(u"older.plist"_s), older) && put(file(u"log"_s), "") &&
                    put(file(u"running"_s), "") && put(file(u"reverts"_s), QByteArray("once\n").repeated(reverts));
        m_supervisor.setWorkingDirectory(m_folder.path());
        m_supervisor.setProcessChannelMode(QProcess::ForwardedChannels);
        const QString loop = u"while [ -e running ]; do \"$0\" .; sleep 0.1; done 2>/dev/null"_s;
        m_supervisor.start(u"/bin/sh"_s, {u"-c"_s, loop, QString::fromUtf8(KELVANE_DOCK_SCRIPT)});
        m_isReady = m_isReady && m_supervisor.waitForStarted() && QTest::qWaitFor([this] { return starts() == 1; });
    }
    ~LivingDock() {
        QFile::remove(file(u"running"_s));
        QProcess::execute(u"/usr/bin/killall"_s, {u"Dock"_s});
        if (!m_supervisor.waitForFinished(5000))
            m_supervisor.kill();
        m_supervisor.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(LivingDock)

    static PropertyList dock(const QString& layout) {
        return {Dictionary{{u"persistent-apps"_s, apps(layout)}, {u"orientation"_s, {u"left"_s}}}};
    }

    bool isReady() const { return m_isReady; }
    QString configuration() const { return file(u"preferences"_s); }
    QString preferences() const { return file(u"preferences/com.apple.dock.plist"_s); }
    qsizetype starts() const { return lines("start"); }
    /// The first sight of the file is one too.
    qsizetype writes() const { return lines("write") - 1; }

private:
    QString file(const QString& name) const { return m_folder.filePath(name); }
    qsizetype lines(const QByteArray& kind) const {
        QFile log(file(u"log"_s));
        const QByteArray text = log.open(QIODevice::ReadOnly) ? '\n' + log.readAll() : QByteArray();
        return text.count('\n' + kind);
    }

    QTemporaryDir m_folder;
    QProcess m_supervisor;
    bool m_isReady = false;
};

} // namespace

/// The Dock's restart for real: a process named Dock, the system's killall and pgrep, real waits and a real file. The
/// process puts its older list back some times after it was restarted.
class RestartTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void writesUntilTheDockKeepsTheList_data();
    void writesUntilTheDockKeepsTheList();
};

void RestartTest::initTestCase() {
    for (const QString& program : {u"/usr/bin/killall"_s, u"/usr/bin/pgrep"_s})
        QVERIFY2(QFile::exists(program), qPrintable(program + u" is missing; psmisc and procps have them"_s));
    if (QProcess::execute(u"/usr/bin/pgrep"_s, {u"-x"_s, u"Dock"_s}) == 0)
        QSKIP("Another process named Dock runs here, which this test must not kill.");
    qunsetenv("KELVANE_DRY_RUN");
}

void RestartTest::writesUntilTheDockKeepsTheList_data() {
    QTest::addColumn<int>("reverts");
    QTest::addColumn<int>("restarts");
    QTest::addColumn<bool>("holds");
    QTest::newRow("the Dock takes the list at once") << 0 << 1 << true;
    QTest::newRow("the Dock writes its older list back once") << 1 << 2 << true;
    QTest::newRow("the Dock writes its older list back twice") << 2 << 3 << true;
    QTest::newRow("the Dock writes its older list back three times") << 3 << 3 << false;
}

void RestartTest::writesUntilTheDockKeepsTheList() {
    QFETCH(const int, reverts);
    QFETCH(const int, restarts);
    QFETCH(const bool, holds);
    const LivingDock dock(reverts);
    QVERIFY(dock.isReady());
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(dock.configuration()));
    Platform::LinuxServices computer;
    const DockCore::Services services = computer.services();
    DockStore dockStore(services.preferences, services.processes, services.clock);
    QVERIFY(dockStore.isDockRunning());
    QCOMPARE(layoutSignature(dockStore.currentTiles()), layoutSignature(tiles(before)));

    std::optional<DockError::Kind> thrown;
    QElapsedTimer timer;
    timer.start();
    try {
        dockStore.write(tiles(after));
    } catch (const DockError& error) {
        thrown = error.kind();
    }
    // Each restart waits for the Dock to go down and, once it is back, to settle.
    QVERIFY(timer.elapsed() >= 1800 * restarts);
    QVERIFY(timer.elapsed() < 20'000);

    QCOMPARE(thrown, holds ? std::nullopt : std::optional(DockError::Kind::verifyFailed));
    QCOMPARE(dock.starts(), 1 + restarts);
    QCOMPARE(dock.writes(), restarts);
    QVERIFY(dockStore.isDockRunning());
    QVERIFY(PropertyList::readDictionary(dock.preferences()) == *LivingDock::dock(holds ? after : before).dictionary());
}

QTEST_GUILESS_MAIN(RestartTest)

#include "RestartTest.moc"
