#include "Platform/Linux/LinuxPreferences.h"

#include "Platform/PreferencesContract.h"
#include "Support/Files.h"
#include "Support/FullDisk.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

class LinuxPreferencesTest : public PreferencesContract {
    Q_OBJECT

    class FileDomain : public Domain {
    public:
        DockCore::Preferences& preferences() override { return m_preferences; }
        PropertyList::Dictionary stored() override {
            return PropertyList::readDictionary(path()).value_or(PropertyList::Dictionary());
        }
        void store(const PropertyList::Dictionary& values) override {
            write(PropertyList{values}.serialize(PropertyList::Format::binary));
        }
        bool synchronizeRefused() override {
            const FullDisk fullDisk(0);
            return m_preferences.synchronize();
        }

        QString folder() const { return m_directory.path() + u"/config"_s; }
        QString path() const { return folder() + u"/com.apple.dock.plist"_s; }
        /// In place, as a program would that knows nothing of atomic files.
        void write(const QByteArray& bytes) {
            QDir().mkpath(folder());
            QFile file(path());
            const bool isOpen = file.open(QIODevice::WriteOnly);
            Q_ASSERT(isOpen);
            file.write(bytes);
        }
        QByteArray bytes() const { return Files::contentOf(path()); }
        bool set(const char* name, const PropertyList& value) {
            m_preferences.setValue(key(name), value);
            return m_preferences.synchronize();
        }

    private:
        QTemporaryDir m_directory;
        Platform::LinuxPreferences m_preferences = Platform::LinuxPreferences(path());
    };
    std::unique_ptr<Domain> makeDomain() override { return std::make_unique<FileDomain>(); }

private Q_SLOTS:
    void theFileLiesInTheConfigurationFolder() {
        qputenv("HOME", "/home/someone");
        qputenv("XDG_CONFIG_HOME", "/else/where");
        QCOMPARE(Platform::LinuxPreferences::defaultPath(), u"/else/where/com.apple.dock.plist"_s);
        qunsetenv("XDG_CONFIG_HOME");
        QCOMPARE(Platform::LinuxPreferences::defaultPath(), u"/home/someone/.config/com.apple.dock.plist"_s);
    }

    void aNewFileIsBinaryAndTheUsersAlone() {
        FileDomain domain;
        QVERIFY(domain.set("k", text("value")));
        QVERIFY(domain.bytes().startsWith("bplist00"));
        struct stat status = {};
        QCOMPARE(::stat(QFile::encodeName(domain.path()).constData(), &status), 0);
        QCOMPARE(status.st_mode & 0777U, 0600U);
        QCOMPARE(::stat(QFile::encodeName(domain.folder()).constData(), &status), 0);
        QCOMPARE(status.st_mode & 0777U, 0700U);
    }

    void readingMakesNoFile() {
        FileDomain domain;
        QVERIFY(domain.preferences().synchronize());
        QVERIFY(!QFileInfo::exists(domain.folder()));
        domain.preferences().setValue(key("k"), std::nullopt);
        QVERIFY(domain.preferences().synchronize());
        QVERIFY(!QFileInfo::exists(domain.folder()));
    }

    void theFormatAndThePermissionsOfAFileStay_data() {
        QTest::addColumn<int>("format");
        QTest::newRow("XML") << int(PropertyList::Format::xml);
        QTest::newRow("binary") << int(PropertyList::Format::binary);
    }
    void theFormatAndThePermissionsOfAFileStay() {
        QFETCH(int, format);
        FileDomain domain;
        const PropertyList::Dictionary before = {{key("tilesize"), {qint64(48)}}};
        domain.write(PropertyList{before}.serialize(PropertyList::Format(format)));
        QVERIFY(::chmod(QFile::encodeName(domain.path()).constData(), 0644) == 0);
        QVERIFY(domain.set("k", text("value")));
        QCOMPARE(int(PropertyList::format(domain.bytes())), format);
        QVERIFY(domain.stored() ==
                (PropertyList::Dictionary{{key("tilesize"), {qint64(48)}}, {key("k"), text("value")}}));
        struct stat status = {};
        QCOMPARE(::stat(QFile::encodeName(domain.path()).constData(), &status), 0);
        QCOMPARE(status.st_mode & 0777U, 0644U);
    }

    void valuesThatOnlyBinaryFilesKnowSurviveAWrite() {
        FileDomain domain;
        const PropertyList::Dictionary odd = {{key("uid"), {PropertyList::UID{7}}},
                                              {key("large"), {std::numeric_limits<quint64>::max()}},
                                              {key("moment"), {PropertyList::Date{0.25}}}};
        domain.store(odd);
        QVERIFY(domain.set("k", text("value")));
        PropertyList::Dictionary expected = odd;
        expected.insert(key("k"), text("value"));
        QVERIFY(domain.stored() == expected);
    }

    void aFileThatIsNoPropertyListIsNeverWrittenOver_data() {
        const QByteArray binary =
            PropertyList{PropertyList::Dictionary{{key("k"), text("stored")}}}.serialize(PropertyList::Format::binary);
        const QByteArray xml =
            PropertyList{PropertyList::Dictionary{{key("k"), text("stored")}}}.serialize(PropertyList::Format::xml);
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("an empty file") << QByteArray("");
        QTest::newRow("a text") << QByteArray("hello\n");
        QTest::newRow("a truncated XML file") << xml.first(xml.size() / 2);
        QTest::newRow("a truncated binary file") << binary.chopped(10);
        QTest::newRow("only the first bytes of a binary file") << QByteArray("bplist00");
        QTest::newRow("a list in place of a dictionary")
            << PropertyList{PropertyList::Array{text("k")}}.serialize(PropertyList::Format::binary);
        QTest::newRow("nested 10,000 levels deep")
            << QByteArray("<plist version=\"1.0\"><dict><key>k</key>" + QByteArray("<array>").repeated(10000) +
                          QByteArray("</array>").repeated(10000) + "</dict></plist>");
        QTest::newRow("a binary file that holds itself") << QByteArray(
            "bplist00\xd1\x01\x00\x51k\x08\x0b\x00\x00\x00\x00\x00\x00\x01\x01\x00\x00\x00\x00\x00\x00\x00"
            "\x02\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x0d",
            47);
    }
    void aFileThatIsNoPropertyListIsNeverWrittenOver() {
        QFETCH(QByteArray, bytes);
        FileDomain domain;
        domain.write(bytes);
        QVERIFY(domain.preferences().synchronize());
        QCOMPARE(domain.preferences().copyValue(key("k")), std::nullopt);
        QVERIFY(!domain.set("k", text("set")));
        QCOMPARE(domain.preferences().copyValue(key("k")), std::nullopt);
        QCOMPARE(domain.bytes(), bytes);
    }

    void somethingThatIsNoFileIsNeverReplaced_data() {
        QTest::addColumn<QString>("kind");
        QTest::newRow("a folder") << u"folder"_s;
        QTest::newRow("a pipe that nobody writes into") << u"pipe"_s;
        QTest::newRow("an endless device") << u"device"_s;
        QTest::newRow("a link to itself") << u"loop"_s;
        QTest::newRow("a file where the folder should be") << u"blocked"_s;
    }
    void somethingThatIsNoFileIsNeverReplaced() {
        QFETCH(QString, kind);
        FileDomain domain;
        if (kind == u"blocked"_s) {
            QFile file(domain.folder());
            QVERIFY(file.open(QIODevice::WriteOnly));
        } else {
            QVERIFY(QDir().mkpath(domain.folder()));
        }
        if (kind == u"folder"_s) {
            QVERIFY(QDir().mkpath(domain.path()));
        } else if (kind == u"pipe"_s) {
            QCOMPARE(::mkfifo(QFile::encodeName(domain.path()).constData(), 0600), 0);
        } else if (kind == u"device"_s) {
            QVERIFY(QFile::link(u"/dev/zero"_s, domain.path()));
        } else if (kind == u"loop"_s) {
            QVERIFY(QFile::link(domain.path(), domain.path()));
        }
        QVERIFY(domain.preferences().synchronize());
        QCOMPARE(domain.preferences().copyValue(key("k")), std::nullopt);
        QVERIFY(!domain.set("k", text("set")));
        QCOMPARE(domain.stored(), PropertyList::Dictionary());
    }

    void aRefusedChangeDoesNotTurnUpLater() {
        FileDomain domain;
        domain.store({{key("k"), text("stored")}});
        domain.preferences().setValue(key("k"), text("refused"));
        QVERIFY(!domain.synchronizeRefused());
        QVERIFY(domain.preferences().synchronize());
        QVERIFY(domain.preferences().copyValue(key("k")) == text("stored"));
        QVERIFY(domain.stored().value(key("k")) == text("stored"));
    }

    void aRefusedSaveLeavesNoFileBehind() {
        FileDomain domain;
        domain.store({{key("k"), text("stored")}});
        domain.preferences().setValue(key("k"), text("refused"));
        QVERIFY(!domain.synchronizeRefused());
        QCOMPARE(QDir(domain.folder()).entryList(QDir::Files | QDir::Hidden), QStringList{u"com.apple.dock.plist"_s});
    }

    void aValueTooDeepToBeReadBackIsRefused() {
        FileDomain domain;
        PropertyList deep = {PropertyList::Array()};
        for (int level = 0; level < 600; ++level) {
            deep = {PropertyList::Array{deep}};
        }
        QVERIFY(!domain.set("k", deep));
        QVERIFY(!QFileInfo::exists(domain.path()));
    }

    void aChangeOfTheSameSizeInTheSameMomentIsSeen() {
        FileDomain domain;
        for (int turn = 0; turn < 200; ++turn) {
            const PropertyList value = {QString::number(1000 + turn)};
            domain.store({{key("k"), value}});
            QVERIFY(domain.preferences().synchronize());
            QVERIFY(domain.preferences().copyValue(key("k")) == value);
        }
    }

    void aFileThatWasRepairedIsReadAgain() {
        FileDomain domain;
        domain.write("broken");
        QVERIFY(domain.preferences().synchronize());
        domain.store({{key("k"), text("stored")}});
        QVERIFY(domain.preferences().synchronize());
        QVERIFY(domain.preferences().copyValue(key("k")) == text("stored"));
    }

    void aLinkStaysALink() {
        FileDomain domain;
        QVERIFY(QDir().mkpath(domain.folder()));
        const QString target = domain.folder() + u"/kept elsewhere"_s;
        QVERIFY(QFile::link(target, domain.path()));
        QVERIFY(domain.set("k", text("value")));
        QVERIFY(QFileInfo(domain.path()).isSymLink());
        QVERIFY(domain.stored().value(key("k")) == text("value"));
        QVERIFY(domain.set("k", text("again")));
        QVERIFY(QFileInfo(domain.path()).isSymLink());
        QVERIFY(PropertyList::readDictionary(target)->value(key("k")) == text("again"));
    }

    void aFileOf50MegabytesIsRead() {
        FileDomain domain;
        const PropertyList large = {QByteArray(50 * 1024 * 1024, 'x')};
        domain.store({{key("large"), large}, {key("k"), text("stored")}});
        QVERIFY(domain.set("k", text("set")));
        QVERIFY(domain.stored().value(key("large")) == large);
    }
};

QTEST_GUILESS_MAIN(LinuxPreferencesTest)
#include "LinuxPreferencesTest.moc"
