#include "DockCore/Storage/Paths.h"

#include "DockCore/Storage/JSONFile.h"
#include "Support/ChildProcess.h"
#include "Support/FakeServices.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QTest>

#include <thread>

using namespace DockCore;
using namespace Qt::StringLiterals;

namespace {
constexpr auto onlyTheUser = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner |
                             QFileDevice::ReadUser | QFileDevice::WriteUser | QFileDevice::ExeUser;
} // namespace

class PathsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void namesEveryFileInTheSupportFolder() {
        Fakes::World world;
        const QString folder = world.directory.path() + u"/Kelvane"_s;
        QCOMPARE(world.paths().support(), folder);
        QCOMPARE(world.paths().usage(), folder + u"/usage.json"_s);
        QCOMPARE(world.paths().profiles(), folder + u"/profiles.json"_s);
        QCOMPARE(world.paths().settings(), folder + u"/settings.json"_s);
        QCOMPARE(world.paths().snapshots(), folder + u"/Snapshots"_s);
        QCOMPARE(QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{u"Snapshots"_s});
    }

    void makesFoldersForTheUserAlone() {
        Fakes::World world;
        QCOMPARE(QFile::permissions(world.paths().support()), onlyTheUser);
        QCOMPARE(QFile::permissions(world.paths().snapshots()), onlyTheUser);
    }

    void leavesAnExistingFolderAsItIs() {
        Fakes::World world;
        const QString folder = world.directory.path() + u"/Kelvane"_s;
        QVERIFY(QDir().mkdir(folder));
        QVERIFY(QFile::setPermissions(folder, onlyTheUser | QFileDevice::ReadGroup));
        QCOMPARE(world.paths().support(), folder);
        QVERIFY(QFile::permissions(folder) & QFileDevice::ReadGroup);
    }

    void theEnvironmentNamesTheFolderItself_data() {
        QTest::addColumn<QString>("suffix");
        QTest::newRow("as it is") << QString();
        QTest::newRow("a trailing slash changes nothing") << u"/"_s;
    }
    void theEnvironmentNamesTheFolderItself() {
        Fakes::World world;
        QFETCH(const QString, suffix);
        const QString folder = world.directory.filePath(u"some/where/new"_s);
        qputenv("KELVANE_HOME", (folder + suffix).toUtf8());
        QCOMPARE(world.paths().usage(), folder + u"/usage.json"_s);
        QVERIFY(QFileInfo(folder).isDir());
        QVERIFY(!QFileInfo::exists(folder + u"/Kelvane"_s));
        QCOMPARE(QFile::permissions(folder), onlyTheUser);
    }

    void aRelativeFolderIsTakenFromTheCurrentOne() {
        Fakes::World world;
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(world.directory.path()));
        qputenv("KELVANE_HOME", "near/by");
        const QString expected = QDir::currentPath() + u"/near/by"_s;
        const QString support = world.paths().support();
        QVERIFY(QDir::setCurrent(before));
        QCOMPARE(support, expected);
        QVERIFY(QFileInfo(expected).isDir());
    }

    void anEmptyNameIsTheCurrentFolder() {
        Fakes::World world;
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(world.directory.path()));
        qputenv("KELVANE_HOME", "");
        const QString expected = QDir::currentPath();
        const QString support = world.paths().support();
        QVERIFY(QDir::setCurrent(before));
        QCOMPARE(support, expected);
        QVERIFY(!QFileInfo::exists(expected + u"/Kelvane"_s));
    }

    void theEnvironmentIsReadOnce() {
        Fakes::World world;
        const QString first = world.directory.filePath(u"first"_s);
        qputenv("KELVANE_HOME", first.toUtf8());
        QCOMPARE(world.paths().support(), first);
        qputenv("KELVANE_HOME", world.directory.filePath(u"second"_s).toUtf8());
        QCOMPARE(world.paths().support(), first);
    }

    void theSnapshotsFolderIsMadeAgain() {
        Fakes::World world;
        const QString snapshots = world.paths().snapshots();
        QVERIFY(QDir().rmdir(snapshots));
        QCOMPARE(world.paths().snapshots(), snapshots);
        QVERIFY(QFileInfo(snapshots).isDir());
    }

    void aDeletedSupportFolderStaysAwayUntilTheNextStart() {
        Fakes::World world;
        const QString support = world.paths().support();
        QVERIFY(QDir().rmdir(support));
        QCOMPARE(world.paths().support(), support);
        QCOMPARE(world.paths().usage(), support + u"/usage.json"_s);
        QVERIFY(!QFileInfo::exists(support));
    }

    void aFolderThatCannotBeMadeIsNamedAllTheSame() {
        Fakes::World world;
        const QString file = world.directory.filePath(u"file"_s);
        JSONFile::save(QJsonArray(), file);
        qputenv("KELVANE_HOME", (file + u"/below"_s).toUtf8());
        QCOMPARE(world.paths().support(), file + u"/below"_s);
        QCOMPARE(world.paths().snapshots(), file + u"/below/Snapshots"_s);
        QVERIFY(!QFileInfo::exists(file + u"/below"_s));
    }

    void withoutAFolderForApplicationDataTheProcessStops() {
        Fakes::World world;
        world.folders.supportPath.clear();
        if (ChildProcess::isChild()) {
            world.paths().support();
            return;
        }
        const auto outcome = ChildProcess::run();
        QVERIFY2(outcome.crashed, qPrintable(outcome.output));
        QVERIFY(outcome.output.contains(u"There is no folder for application data."));
    }

    void manyThreadsGetOneAnswer() {
        Fakes::World world;
        const Paths& paths = world.paths();
        std::vector<QString> answers(8);
        std::vector<std::thread> threads;
        for (QString& answer : answers)
            threads.emplace_back([&answer, &paths] { answer = paths.snapshots(); });
        for (std::thread& thread : threads)
            thread.join();
        for (const QString& answer : answers)
            QCOMPARE(answer, paths.snapshots());
    }

    void cleanup() { qunsetenv("KELVANE_HOME"); }
};

QTEST_GUILESS_MAIN(PathsTest)
#include "PathsTest.moc"
