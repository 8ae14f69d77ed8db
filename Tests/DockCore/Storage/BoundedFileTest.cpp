#include "DockCore/Storage/BoundedFile.h"

#include "Support/Files.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using DockCore::BoundedFile;
using State = BoundedFile::State;

class BoundedFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsAFileUpToTheLimit_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<State>("state");
        QTest::newRow("an empty file") << QByteArray() << State::read;
        QTest::newRow("a small file") << QByteArray("a\0b", 3) << State::read;
        QTest::newRow("a file at the limit") << QByteArray(100, 'x') << State::read;
        QTest::newRow("a file over the limit") << QByteArray(101, 'x') << State::tooLarge;
    }
    void readsAFileUpToTheLimit() {
        QFETCH(const QByteArray, bytes);
        QFETCH(const State, state);
        QVERIFY(Files::put(path(), bytes));
        const BoundedFile file = BoundedFile::read(path(), 100);
        QCOMPARE(file.state, state);
        QCOMPARE(file.bytes, state == State::read ? bytes : QByteArray());
        QVERIFY(QFile::link(path(), m_folder.filePath(u"link"_s)));
        QCOMPARE(BoundedFile::read(m_folder.filePath(u"link"_s), 100).bytes, file.bytes);
    }

    void readsMoreThanTheSizeThatWasMeasured() {
        // The kernel makes the text up while it is read and says that the file is empty, as if it grew meanwhile.
        const QString growing = u"/proc/cpuinfo"_s;
        if (!QFile::exists(growing))
            QSKIP("This system has no such file.");
        const BoundedFile file = BoundedFile::read(growing, 1024 * 1024);
        QCOMPARE(file.state, State::read);
        QVERIFY(file.bytes.size() > 100);
        QCOMPARE(BoundedFile::read(growing, 100).state, State::tooLarge);
    }

    void opensNothingButRegularFiles_data() {
        QTest::addColumn<QString>("path");
        QTest::newRow("a folder") << u"folder"_s;
        QTest::newRow("a pipe that has no writer") << u"pipe"_s;
        QTest::newRow("a link to a pipe") << u"link to a pipe"_s;
        QTest::newRow("an endless device") << u"/dev/zero"_s;
    }
    void opensNothingButRegularFiles() {
        QFETCH(const QString, path);
        const QDir folder(m_folder.path());
        QVERIFY(folder.mkdir(u"folder"_s));
        QCOMPARE(::mkfifo(QFile::encodeName(folder.filePath(u"pipe"_s)).constData(), 0600), 0);
        QVERIFY(QFile::link(folder.filePath(u"pipe"_s), folder.filePath(u"link to a pipe"_s)));
        const BoundedFile file = BoundedFile::read(folder.filePath(path), 100);
        QCOMPARE(file.state, State::notRegular);
        QVERIFY(file.bytes.isEmpty());
    }

    void saysWhatIsMissing_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<State>("state");
        QTest::addColumn<QString>("error");
        QTest::newRow("no file") << u"missing"_s << State::missing << u"No such file or directory"_s;
        QTest::newRow("a link to no file") << u"dangling"_s << State::missing << u"No such file or directory"_s;
        QTest::newRow("a file for a folder") << u"file/inside"_s << State::missing << u"Not a directory"_s;
        QTest::newRow("a link to itself") << u"loop"_s << State::unreadable << u"Too many levels of symbolic links"_s;
    }
    void saysWhatIsMissing() {
        QFETCH(const QString, name);
        QFETCH(const State, state);
        QFETCH(const QString, error);
        const auto inside = [this](const char* entry) { return m_folder.path().toStdString() + '/' + entry; };
        QVERIFY(Files::put(path(), "x"));
        std::filesystem::create_symlink(inside("missing"), inside("dangling"));
        std::filesystem::create_symlink(inside("loop"), inside("loop"));
        const BoundedFile file = BoundedFile::read(m_folder.filePath(name), 100);
        QCOMPARE(file.state, state);
        QCOMPARE(file.error, error);
    }

    void anEmptyPathIsMissing() { QCOMPARE(BoundedFile::read(QString(), 100).state, State::missing); }

    void cleanup() {
        for (const QFileInfo& entry :
             QDir(m_folder.path()).entryInfoList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot))
            std::filesystem::remove(entry.filePath().toStdString());
    }

private:
    QString path() const { return m_folder.filePath(u"file"_s); }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(BoundedFileTest)
#include "BoundedFileTest.moc"
