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
        const Fakes::World world;
        const QString folder = world.directory.path() + u"/Kelvane"_s;
        QCOMPARE(Paths::support(), folder);
        QCOMPARE(Paths::usage(), folder + u"/usage.json"_s);
        QCOMPARE(Paths::profiles(), folder + u"/profiles.json"_s);
        QCOMPARE(Paths::settings(), folder + u"/settings.json"_s);
        QCOMPARE(Paths::snapshots(), folder + u"/Snapshots"_s);
        QCOMPARE(QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{u"Snapshots"_s});
    }

    void makesFoldersForTheUserAlone() {
        const Fakes::World world;
        QCOMPARE(QFile::permissions(Paths::support()), onlyTheUser);
        QCOMPARE(QFile::permissions(Paths::snapshots()), onlyTheUser);
    }

    void leavesAnExistingFolderAsItIs() {
        const Fakes::World world;
        const QString folder = world.directory.path() + u"/Kelvane"_s;
        QVERIFY(QDir().mkdir(folder));
        QVERIFY(QFile::setPermissions(folder, onlyTheUser | QFileDevice::ReadGroup));
        QCOMPARE(Paths::support(), folder);
        QVERIFY(QFile::permissions(folder) & QFileDevice::ReadGroup);
    }

    void theEnvironmentNamesTheFolderItself_data() {
        QTest::addColumn<QString>("suffix");
        QTest::newRow("as it is") << QString();
        QTest::newRow("a trailing slash changes nothing") << u"/"_s;
    }
    void theEnvironmentNamesTheFolderItself() {
        const Fakes::World world;
        QFETCH(const QString, suffix);
        const QString folder = world.directory.filePath(u"some/where/new"_s);
        qputenv("KELVANE_HOME", (folder + suffix).toUtf8());
        QCOMPARE(Paths::usage(), folder + u"/usage.json"_s);
        QVERIFY(QFileInfo(folder).isDir());
        QVERIFY(!QFileInfo::exists(folder + u"/Kelvane"_s));
        QCOMPARE(QFile::permissions(folder), onlyTheUser);
    }

    void aRelativeFolderIsTakenFromTheCurrentOne() {
        const Fakes::World world;
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(world.directory.path()));
        qputenv("KELVANE_HOME", "near/by");
        const QString expected = QDir::currentPath() + u"/near/by"_s;
        const QString support = Paths::support();
        QVERIFY(QDir::setCurrent(before));
        QCOMPARE(support, expected);
        QVERIFY(QFileInfo(expected).isDir());
    }

    void anEmptyNameIsTheCurrentFolder() {
        const Fakes::World world;
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(world.directory.path()));
        qputenv("KELVANE_HOME", "");
        const QString expected = QDir::currentPath();
        const QString support = Paths::support();
        QVERIFY(QDir::setCurrent(before));
        QCOMPARE(support, expected);
        QVERIFY(!QFileInfo::exists(expected + u"/Kelvane"_s));
    }

    void theEnvironmentIsReadOnce() {
        const Fakes::World world;
        const QString first = world.directory.filePath(u"first"_s);
        qputenv("KELVANE_HOME", first.toUtf8());
        QCOMPARE(Paths::support(), first);
        qputenv("KELVANE_HOME", world.directory.filePath(u"second"_s).toUtf8());
        QCOMPARE(Paths::support(), first);
    }

    void anotherPlatformStartsAnew() {
        QString first;
        {
            const Fakes::World world;
            first = Paths::support();
        }
        const Fakes::World world;
        QVERIFY(Paths::support() != first);
    }

    void theSnapshotsFolderIsMadeAgain() {
        const Fakes::World world;
        const QString snapshots = Paths::snapshots();
        QVERIFY(QDir().rmdir(snapshots));
        QCOMPARE(Paths::snapshots(), snapshots);
        QVERIFY(QFileInfo(snapshots).isDir());
    }

    void aDeletedSupportFolderStaysAwayUntilTheNextStart() {
        const Fakes::World world;
        const QString support = Paths::support();
        QVERIFY(QDir().rmdir(support));
        QCOMPARE(Paths::support(), support);
        QCOMPARE(Paths::usage(), support + u"/usage.json"_s);
        QVERIFY(!QFileInfo::exists(support));
    }

    void aFolderThatCannotBeMadeIsNamedAllTheSame() {
        const Fakes::World world;
        const QString file = world.directory.filePath(u"file"_s);
        JSONFile::save(QJsonArray(), file);
        qputenv("KELVANE_HOME", (file + u"/below"_s).toUtf8());
        QCOMPARE(Paths::support(), file + u"/below"_s);
        QCOMPARE(Paths::snapshots(), file + u"/below/Snapshots"_s);
        QVERIFY(!QFileInfo::exists(file + u"/below"_s));
    }

    void withoutAFolderForApplicationDataTheProcessStops() {
        Fakes::World world;
        world.folders.supportPath.clear();
        if (ChildProcess::isChild()) {
            Paths::support();
            return;
        }
        const auto outcome = ChildProcess::run();
        QVERIFY2(outcome.crashed, qPrintable(outcome.output));
        QVERIFY(outcome.output.contains(u"There is no folder for application data."));
    }

    void manyThreadsGetOneAnswer() {
        const Fakes::World world;
        std::vector<QString> answers(8);
        std::vector<std::thread> threads;
        for (QString& answer : answers)
            threads.emplace_back([&answer] { answer = Paths::snapshots(); });
        for (std::thread& thread : threads)
            thread.join();
        for (const QString& answer : answers)
            QCOMPARE(answer, Paths::snapshots());
    }

    void cleanup() { qunsetenv("KELVANE_HOME"); }
};

QTEST_GUILESS_MAIN(PathsTest)
#include "PathsTest.moc"
