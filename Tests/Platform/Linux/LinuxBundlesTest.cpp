#include "Platform/Linux/LinuxBundles.h"

#include "DockCore/Storage/PropertyList.h"
#include "Platform/BundlesContract.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using DockCore::PropertyList;

class LinuxBundlesTest : public BundlesContract {
    Q_OBJECT

    class DiskComputer : public Computer {
    public:
        DockCore::Bundles& bundles() override { return m_bundles; }
        QString install(const QString& name, const std::optional<QString>& identifier) override {
            return makeBundle(u"/Applications/"_s + name, identifier);
        }
        void remove(const QString& path) override { QDir(path).removeRecursively(); }

        QString path(const QString& below) const { return m_directory.path() + below; }
        QString makeBundle(const QString& below, const std::optional<QString>& identifier) {
            PropertyList::Dictionary info = {{u"CFBundleName"_s, {u"A bundle"_s}}};
            if (identifier) {
                info.insert(u"CFBundleIdentifier"_s, {*identifier});
            }
            return makeBundle(below, PropertyList{info}.serialize(PropertyList::Format::xml));
        }
        QString makeBundle(const QString& below, const QByteArray& info) {
            const QString bundle = path(below) + u".app"_s;
            QDir().mkpath(bundle + u"/Contents"_s);
            QFile file(bundle + u"/Contents/Info.plist"_s);
            const bool isOpen = file.open(QIODevice::WriteOnly);
            Q_ASSERT(isOpen);
            file.write(info);
            return bundle;
        }

        /// As another process that runs later has it.
        Platform::LinuxBundles another() const {
            return Platform::LinuxBundles(
                [this] {
                    return QStringList{path(u"/Applications"_s), path(u"/System/Applications"_s)};
                },
                [this] { return path(u"/bundles.json"_s); });
        }

    private:
        QTemporaryDir m_directory;
        Platform::LinuxBundles m_bundles = another();
    };
    std::unique_ptr<Computer> makeComputer() override { return std::make_unique<DiskComputer>(); }

    /// Whether an answer about this file or folder may be kept from now on.
    static bool isSettled(const QString& path) {
        const std::optional<Platform::FileStamp> stamp = Platform::FileStamp::of(path);
        return stamp && stamp->isSettled;
    }
    static QByteArray xml(const QByteArray& dictionary) {
        return "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict>" + dictionary + "</dict></plist>";
    }

private Q_SLOTS:
    void whatWasRememberedIsFoundWhereverItLies() {
        DiskComputer computer;
        const QString path = computer.makeBundle(u"/Elsewhere/Odd"_s, u"org.example.odd"_s);
        QCOMPARE(computer.bundles().path(u"org.example.odd"_s), std::nullopt);
        computer.bundles().remember(path + u'/');
        QCOMPARE(computer.bundles().path(u"org.example.odd"_s), std::optional(path));
        QCOMPARE(computer.another().path(u"org.example.odd"_s), std::optional(path));
        const QString second = computer.makeBundle(u"/Elsewhere/Even"_s, u"org.example.even"_s);
        computer.bundles().remember(second);
        QCOMPARE(computer.another().path(u"org.example.even"_s), std::optional(second));
        QCOMPARE(computer.another().path(u"org.example.odd"_s), std::optional(path));
        computer.remove(path);
        QCOMPARE(computer.bundles().path(u"org.example.odd"_s), std::nullopt);
        const QString installed = computer.install(u"Odd"_s, u"org.example.odd"_s);
        computer.makeBundle(u"/Elsewhere/Odd"_s, u"org.example.odd"_s);
        QCOMPARE(computer.another().path(u"org.example.odd"_s), std::optional(installed));
    }

    void onlyWhatIsNotFoundOtherwiseIsKept() {
        DiskComputer computer;
        computer.bundles().remember(computer.install(u"Safari"_s, safari()));
        computer.bundles().remember(computer.makeBundle(u"/Elsewhere/Bare"_s, std::nullopt));
        computer.bundles().remember(computer.path(u"/Elsewhere/None.app"_s));
        QVERIFY(!QFile::exists(computer.path(u"/bundles.json"_s)));
    }

    void theIdentifierIsReadFromBothFormats_data() {
        QTest::addColumn<int>("format");
        QTest::newRow("XML") << int(PropertyList::Format::xml);
        QTest::newRow("binary") << int(PropertyList::Format::binary);
    }
    void theIdentifierIsReadFromBothFormats() {
        QFETCH(int, format);
        DiskComputer computer;
        const PropertyList info = {PropertyList::Dictionary{{u"CFBundleIdentifier"_s, {u"org.example.Überblick"_s}}}};
        const QString path = computer.makeBundle(u"/Applications/A"_s, info.serialize(PropertyList::Format(format)));
        QCOMPARE(computer.bundles().identifier(path), std::optional(u"org.example.Überblick"_s));
    }

    void aBrokenInfoFileGivesNoIdentifier_data() {
        const QByteArray key = "<key>CFBundleIdentifier</key>";
        QTest::addColumn<QByteArray>("info");
        QTest::newRow("an empty file") << QByteArray("");
        QTest::newRow("a text") << QByteArray("CFBundleIdentifier = org.example.a;");
        QTest::newRow("a truncated XML file") << xml(key + "<string>org.example.a</string>").first(90);
        QTest::newRow("a truncated binary file")
            << PropertyList{PropertyList::Dictionary{{u"CFBundleIdentifier"_s, {u"org.example.a"_s}}}}
                   .serialize(PropertyList::Format::binary)
                   .chopped(5);
        QTest::newRow("a list at the top")
            << QByteArray("<plist version=\"1.0\"><array><string>org.example.a</string></array></plist>");
        QTest::newRow("an identifier that is a number") << xml(key + "<integer>7</integer>");
        QTest::newRow("an identifier that is a list") << xml(key + "<array><string>org.example.a</string></array>");
        QTest::newRow("an identifier that is empty") << xml(key + "<string></string>");
        QTest::newRow("an identifier one level too deep")
            << xml("<key>a</key><dict>" + key + "<string>org.example.a</string></dict>");
        QTest::newRow("nested 10,000 levels deep")
            << xml(key + "<string>org.example.a</string><key>k</key>" + QByteArray("<array>").repeated(10000) +
                   QByteArray("</array>").repeated(10000));
        QTest::newRow("too large to be one") << QByteArray(17 * 1024 * 1024, ' ') + xml(key + "<string>a</string>");
    }
    void aBrokenInfoFileGivesNoIdentifier() {
        QFETCH(QByteArray, info);
        DiskComputer computer;
        const QString path = computer.makeBundle(u"/Applications/Broken"_s, info);
        const QString whole = computer.install(u"Whole"_s, u"org.example.whole"_s);
        QCOMPARE(computer.bundles().identifier(path), std::nullopt);
        QCOMPARE(computer.bundles().path(u"org.example.a"_s), std::nullopt);
        QCOMPARE(computer.bundles().path(u"org.example.whole"_s), std::optional(whole));
    }

    void onlyAFolderWhoseNameEndsInAppIsABundle_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("isBundle");
        QTest::newRow("it ends in .app") << u"Safari.app"_s << true;
        QTest::newRow("it has no extension") << u"Safari"_s << false;
        QTest::newRow("it has another one") << u"Safari.bundle"_s << false;
        QTest::newRow("it is written in capitals") << u"Safari.APP"_s << false;
        QTest::newRow("something follows") << u"Safari.app.old"_s << false;
    }
    void onlyAFolderWhoseNameEndsInAppIsABundle() {
        QFETCH(QString, name);
        QFETCH(bool, isBundle);
        DiskComputer computer;
        const QString bundle = computer.install(u"Other"_s, safari());
        const QString path = computer.path(u"/Applications/"_s + name);
        QVERIFY(QDir().rename(bundle, path));
        QCOMPARE(computer.bundles().identifier(path).has_value(), isBundle);
        QCOMPARE(computer.bundles().path(safari()).has_value(), isBundle);
    }

    void aTrailingSlashDoesNotMatter() {
        DiskComputer computer;
        const QString path = computer.install(u"Safari"_s, safari());
        QCOMPARE(computer.bundles().identifier(path + u'/'), std::optional(safari()));
        QCOMPARE(computer.bundles().displayName(path + u"//"_s), u"Safari.app"_s);
    }

    void theDisplayNameIsTheFileName() {
        DiskComputer computer;
        QCOMPARE(computer.bundles().displayName(u"/Applications/Überblick.app"_s), u"Überblick.app"_s);
        QCOMPARE(computer.bundles().displayName(u"Safari.app"_s), u"Safari.app"_s);
        QCOMPARE(computer.bundles().displayName(u"/"_s), QString());
    }

    void anApplicationIsFoundDownToTheThirdFolderBelow_data() {
        QTest::addColumn<QString>("below");
        QTest::addColumn<bool>("isFound");
        QTest::newRow("in the folder itself") << u"/Applications/A"_s << true;
        QTest::newRow("one folder below") << u"/Applications/Games/A"_s << true;
        QTest::newRow("two folders below") << u"/Applications/Games/Board/A"_s << true;
        QTest::newRow("three folders below") << u"/Applications/Games/Board/Old/A"_s << true;
        QTest::newRow("four folders below") << u"/Applications/Games/Board/Old/Older/A"_s << false;
        QTest::newRow("in the second search folder") << u"/System/Applications/A"_s << true;
        QTest::newRow("in a hidden folder") << u"/Applications/.hidden/A"_s << false;
        QTest::newRow("in no search folder") << u"/Elsewhere/A"_s << false;
        QTest::newRow("inside another application") << u"/Applications/B.app/Contents/Helpers/A"_s << false;
        QTest::newRow("right inside another application") << u"/Applications/B.app/A"_s << false;
    }
    void anApplicationIsFoundDownToTheThirdFolderBelow() {
        QFETCH(QString, below);
        QFETCH(bool, isFound);
        DiskComputer computer;
        computer.install(u"B"_s, u"org.example.b"_s);
        const QString path = computer.makeBundle(below, u"org.example.a"_s);
        QCOMPARE(computer.bundles().path(u"org.example.a"_s), isFound ? std::optional(path) : std::nullopt);
        QCOMPARE(computer.bundles().identifier(path), std::optional(u"org.example.a"_s));
    }

    void anApplicationInsideABundleOfAnotherKindIsNotFound() {
        DiskComputer computer;
        computer.makeBundle(u"/Applications/Plug.bundle/Contents/Helpers/A"_s, u"org.example.a"_s);
        QFile info(computer.path(u"/Applications/Plug.bundle/Contents/Info.plist"_s));
        QVERIFY(info.open(QIODevice::WriteOnly));
        QCOMPARE(computer.bundles().path(u"org.example.a"_s), std::nullopt);
    }

    void theCopyNearerToTheTopCounts_data() {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::newRow("the earlier search folder") << u"/Applications/A"_s << u"/System/Applications/A"_s;
        QTest::newRow("the folder itself before one below") << u"/Applications/A"_s << u"/Applications/Games/A"_s;
        QTest::newRow("what the catalog lists before what it does not")
            << u"/System/Applications/A"_s << u"/Applications/Games/A"_s;
        QTest::newRow("on a level below, the earlier search folder")
            << u"/Applications/Games/A"_s << u"/System/Applications/Games/A"_s;
    }
    void theCopyNearerToTheTopCounts() {
        QFETCH(QString, first);
        QFETCH(QString, second);
        DiskComputer computer;
        const QString secondPath = computer.makeBundle(second, u"org.example.a"_s);
        QCOMPARE(computer.bundles().path(u"org.example.a"_s), std::optional(secondPath));
        const QString firstPath = computer.makeBundle(first, u"org.example.a"_s);
        QCOMPARE(computer.bundles().path(u"org.example.a"_s), std::optional(firstPath));
        computer.remove(firstPath);
        QCOMPARE(computer.bundles().path(u"org.example.a"_s), std::optional(secondPath));
    }

    void loopsOfLinksEnd() {
        DiskComputer computer;
        const QString path = computer.makeBundle(u"/Applications/Games/A"_s, u"org.example.a"_s);
        const QString games = computer.path(u"/Applications/Games/"_s);
        QVERIFY(QFile::link(games, games + u"itself"_s));
        QVERIFY(QFile::link(computer.path(u"/Applications"_s), games + u"up"_s));
        QVERIFY(QFile::link(u"/nowhere"_s, games + u"gone"_s));
        QVERIFY(QFile::link(games + u"round.app"_s, games + u"round.app"_s));
        QCOMPARE(computer.bundles().path(u"org.example.b"_s), std::nullopt);
        QCOMPARE(computer.bundles().path(u"org.example.a"_s), std::optional(path));
        QCOMPARE(computer.bundles().identifier(games + u"round.app"_s), std::nullopt);
    }

    void aLinkedApplicationAndALinkedFolderAreFound() {
        DiskComputer computer;
        computer.install(u"Safari"_s, safari());
        const QString elsewhere = computer.makeBundle(u"/Elsewhere/A"_s, u"org.example.a"_s);
        const QString linked = computer.path(u"/Applications/Linked.app"_s);
        QVERIFY(QFile::link(elsewhere, linked));
        computer.makeBundle(u"/Other/B"_s, u"org.example.b"_s);
        QVERIFY(QFile::link(computer.path(u"/Other"_s), computer.path(u"/Applications/Other"_s)));
        QCOMPARE(computer.bundles().path(u"org.example.a"_s), std::optional(linked));
        QCOMPARE(computer.bundles().path(u"org.example.b"_s),
                 std::optional(computer.path(u"/Applications/Other/B.app"_s)));
    }

    void whatIsNotAFileIsNotWaitedFor() {
        DiskComputer computer;
        const QString path = computer.install(u"Pipe"_s, safari());
        const QString info = path + u"/Contents/Info.plist"_s;
        QVERIFY(QFile::remove(info));
        QCOMPARE(::mkfifo(QFile::encodeName(info).constData(), 0600), 0);
        QCOMPARE(computer.bundles().identifier(path), std::nullopt);
        QVERIFY(QFile::remove(info));
        QVERIFY(QFile::link(u"/dev/zero"_s, info));
        QCOMPARE(computer.bundles().identifier(path), std::nullopt);
        QVERIFY(QFile::remove(info));
        QVERIFY(QDir().mkdir(info));
        QCOMPARE(computer.bundles().identifier(path), std::nullopt);
    }

    void anApplicationThatIsStillBeingCopiedIsFoundWhenItIsThere() {
        DiskComputer computer;
        const QString path = computer.path(u"/Applications/Slow.app"_s);
        QVERIFY(QDir().mkpath(path));
        QTRY_VERIFY(isSettled(computer.path(u"/Applications"_s)));
        QCOMPARE(computer.bundles().path(safari()), std::nullopt);
        computer.makeBundle(u"/Applications/Slow"_s, safari());
        QCOMPARE(computer.bundles().path(safari()), std::optional(path));
    }

    void changesAreNoticedWhenAnswersAreKept() {
        DiskComputer computer;
        const QString folder = computer.path(u"/Applications"_s);
        const QString safariPath = computer.install(u"Safari"_s, safari());
        const QString notes = computer.install(u"Notes"_s, u"org.example.one"_s);
        QTRY_VERIFY(isSettled(folder) && isSettled(notes + u"/Contents/Info.plist"_s));
        QCOMPARE(computer.bundles().path(safari()), std::optional(safariPath));
        QCOMPARE(computer.bundles().path(u"com.apple.mail"_s), std::nullopt);

        const QString mail = computer.install(u"Mail"_s, u"com.apple.mail"_s);
        QCOMPARE(computer.bundles().path(u"com.apple.mail"_s), std::optional(mail));
        QTRY_VERIFY(isSettled(folder));
        QCOMPARE(computer.bundles().path(safari()), std::optional(safariPath));

        // The same file with another text: no folder tells.
        computer.install(u"Notes"_s, u"org.example.two"_s);
        QCOMPARE(computer.bundles().path(u"org.example.one"_s), std::nullopt);
        QCOMPARE(computer.bundles().path(u"org.example.two"_s), std::optional(notes));

        computer.remove(safariPath);
        QCOMPARE(computer.bundles().path(safari()), std::nullopt);
        QCOMPARE(computer.bundles().identifier(safariPath), std::nullopt);
    }

    void anApplicationInAFolderMadeLaterIsFound() {
        DiskComputer computer;
        QCOMPARE(computer.bundles().path(safari()), std::nullopt);
        const QString system = computer.makeBundle(u"/System/Applications/Safari"_s, safari());
        QCOMPARE(computer.bundles().path(safari()), std::optional(system));
        const QString games = computer.makeBundle(u"/Applications/Games/Chess"_s, u"com.apple.Chess"_s);
        QCOMPARE(computer.bundles().path(u"com.apple.Chess"_s), std::optional(games));
    }

    void aFileInPlaceOfASearchFolderIsNoFolder() {
        DiskComputer computer;
        QFile file(computer.path(u"/Applications"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(computer.bundles().path(safari()), std::nullopt);
        QVERIFY(file.remove());
        const QString path = computer.install(u"Safari"_s, safari());
        QCOMPARE(computer.bundles().path(safari()), std::optional(path));
    }

    void aChangeOfTheSameSizeInTheSameMomentIsSeen() {
        DiskComputer computer;
        for (int turn = 0; turn < 200; ++turn) {
            const QString identifier = u"org.example.number%1"_s.arg(1000 + turn);
            const QString path = computer.install(u"A"_s, identifier);
            QCOMPARE(computer.bundles().identifier(path), std::optional(identifier));
            QCOMPARE(computer.bundles().path(identifier), std::optional(path));
        }
    }

    void severalThreadsMayAskAtOnce() {
        DiskComputer computer;
        QStringList paths;
        for (int number = 0; number < 20; ++number) {
            paths.append(computer.install(QString::number(number), u"org.example.number%1"_s.arg(number)));
        }
        std::atomic<int> wrong = 0;
        QList<QThread*> threads;
        for (int turn = 0; turn < 4; ++turn) {
            threads.append(QThread::create([&] {
                for (int number = 0; number < 20; ++number) {
                    const QString identifier = u"org.example.number%1"_s.arg(number);
                    wrong += computer.bundles().path(identifier) == paths.at(number) ? 0 : 1;
                    wrong += computer.bundles().identifier(paths.at(number)) == identifier ? 0 : 1;
                    wrong += computer.bundles().path(u"org.example.none"_s) ? 1 : 0;
                }
            }));
            threads.last()->start();
        }
        for (QThread* thread : std::as_const(threads)) {
            thread->wait();
            delete thread;
        }
        QCOMPARE(wrong.load(), 0);
    }
};

QTEST_GUILESS_MAIN(LinuxBundlesTest)
#include "LinuxBundlesTest.moc"
