#include "Platform/Linux/LinuxFolders.h"

#include "Platform/FoldersContract.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <pwd.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class LinuxFoldersTest : public FoldersContract {
    Q_OBJECT

    class RealComputer : public Computer {
    public:
        DockCore::Folders& folders() override { return m_folders; }
        QString fill(const QStringList& names) override {
            const QString folder = m_directory.filePath(u"filled"_s);
            QDir().mkpath(folder);
            for (const QString& name : names) {
                QDir(folder).mkdir(name);
            }
            return folder;
        }
        QString missingFolder() override { return m_directory.filePath(u"missing"_s); }

    private:
        QTemporaryDir m_directory;
        Platform::LinuxFolders m_folders;
    };
    std::unique_ptr<Computer> makeComputer() override { return std::make_unique<RealComputer>(); }

    static void set(const char* variable, const QString& value) {
        if (value.isNull()) {
            qunsetenv(variable);
        } else {
            qputenv(variable, value.toUtf8());
        }
    }

private Q_SLOTS:
    void init() {
        qputenv("HOME", "/home/someone");
        qunsetenv("XDG_DATA_HOME");
        qunsetenv("XDG_CONFIG_HOME");
    }

    void theHomeFolderComesFromTheEnvironment_data() {
        const QString inDatabase = QFile::decodeName(getpwuid(getuid())->pw_dir);
        QTest::addColumn<QString>("variable");
        QTest::addColumn<QString>("home");
        QTest::newRow("as it is written") << u"/home/someone"_s << u"/home/someone"_s;
        QTest::newRow("without a trailing slash") << u"/home/someone/"_s << u"/home/someone"_s;
        QTest::newRow("although it does not exist") << u"/nowhere/at all"_s << u"/nowhere/at all"_s;
        QTest::newRow("from the user database when it is missing") << QString() << inDatabase;
        QTest::newRow("from the user database when it is empty") << u""_s << inDatabase;
        QTest::newRow("from the user database when it is relative") << u"home/someone"_s << inDatabase;
    }
    void theHomeFolderComesFromTheEnvironment() {
        QFETCH(QString, variable);
        QFETCH(QString, home);
        set("HOME", variable);
        QCOMPARE(Platform::LinuxFolders().home(), home);
    }

    void theBaseFoldersComeFromTheEnvironment_data() {
        QTest::addColumn<QString>("variable");
        QTest::addColumn<QString>("data");
        QTest::addColumn<QString>("configuration");
        const QString dataDefault = u"/home/someone/.local/share"_s;
        const QString configurationDefault = u"/home/someone/.config"_s;
        QTest::newRow("below the home folder when they are not set")
            << QString() << dataDefault << configurationDefault;
        QTest::newRow("below the home folder when they are empty") << u""_s << dataDefault << configurationDefault;
        QTest::newRow("below the home folder when they are relative")
            << u"share"_s << dataDefault << configurationDefault;
        QTest::newRow("as they are when they are absolute") << u"/else/where"_s << u"/else/where"_s << u"/else/where"_s;
    }
    void theBaseFoldersComeFromTheEnvironment() {
        QFETCH(QString, variable);
        QFETCH(QString, data);
        QFETCH(QString, configuration);
        set("XDG_DATA_HOME", variable);
        set("XDG_CONFIG_HOME", variable);
        QCOMPARE(Platform::LinuxFolders().applicationSupport(), data);
        QCOMPARE(Platform::LinuxFolders::configuration(), configuration);
    }

    void entriesThatBeginWithADotAreHidden() {
        RealComputer computer;
        const QString folder = computer.fill({u".hidden.app"_s, u"..app"_s, u"Shown.app"_s});
        QCOMPARE(computer.folders().entries(folder), QStringList{folder + u"/Shown.app"_s});
    }

    void entriesAreThoseOfTheFolderItself() {
        RealComputer computer;
        const QString folder = computer.fill({u"Games"_s, u"Games/Chess.app"_s});
        QCOMPARE(computer.folders().entries(folder), QStringList{folder + u"/Games"_s});
    }

    void aTrailingSlashIsNotDoubled() {
        RealComputer computer;
        const QString folder = computer.fill({u"Safari.app"_s});
        QCOMPARE(computer.folders().entries(folder + u'/'), QStringList{folder + u"/Safari.app"_s});
    }

    void aFileHasNoEntries() { QCOMPARE(Platform::LinuxFolders().entries(u"/etc/passwd"_s), QStringList()); }

    void aLinkToNowhereIsAnEntryAndHasNone() {
        RealComputer computer;
        const QString folder = computer.fill({});
        const QString link = folder + u"/Gone.app"_s;
        QVERIFY(QFile::link(u"/nowhere"_s, link));
        QCOMPARE(computer.folders().entries(folder), QStringList{link});
        QCOMPARE(computer.folders().entries(link), QStringList());
    }
};

QTEST_GUILESS_MAIN(LinuxFoldersTest)
#include "LinuxFoldersTest.moc"
