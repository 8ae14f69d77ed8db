#include "DockCore/AppCatalog.h"

#include "Support/FakeServices.h"

#include <QLocale>
#include <QTest>

#include <future>
#include <thread>

using namespace DockCore;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {
QStringList names(const QList<AppInfo>& apps) {
    QStringList names;
    for (const AppInfo& app : apps)
        names.append(app.name);
    return names;
}

/// Bundles that query the catalog from another thread while they are read.
class AskedMeanwhile : public Fakes::Bundles {
public:
    std::optional<QString> identifier(const QString& path) override {
        ask();
        return Fakes::Bundles::identifier(path);
    }
    std::optional<QString> path(const QString& identifier) override {
        ask();
        return Fakes::Bundles::path(identifier);
    }

    AppCatalog* catalog = nullptr;
    bool isAsked = false;
    int answers = 0;
    bool isBlocked = false;

private:
    void ask() {
        if (!isAsked || isBlocked)
            return;
        m_questions.push_back(std::async(std::launch::async, [this] { catalog->isInstalled(u"com.known"_s); }));
        isBlocked = m_questions.back().wait_for(10s) != std::future_status::ready;
        answers += isBlocked ? 0 : 1;
    }

    // Held here, because the destructor of a future waits, and a blocked query must not block the reader.
    std::vector<std::future<void>> m_questions;
};
} // namespace

class AppCatalogTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_world = std::make_unique<Fakes::World>(); }
    void cleanup() {
        m_world.reset();
        QLocale::setDefault(QLocale::system());
    }

    void searchesSixFoldersInOrder() {
        m_world->folders.homePath = u"/Users/somebody"_s;
        QCOMPARE(AppCatalog::searchFolders(m_world->folders),
                 (QStringList{u"/Applications"_s, u"/Applications/Utilities"_s, u"/System/Applications"_s,
                              u"/System/Applications/Utilities"_s, u"/Applications/Setapp"_s,
                              u"/Users/somebody/Applications"_s}));
    }

    void ignoresFourteenIdentifiers() {
        QCOMPARE(AppCatalog::ignored(),
                 (QSet<QString>{u"com.apple.finder"_s, u"com.apple.dock"_s, u"com.apple.loginwindow"_s,
                                u"com.apple.SecurityAgent"_s, u"com.apple.notificationcenterui"_s,
                                u"com.apple.controlcenter"_s, u"com.apple.Spotlight"_s, u"com.apple.systemuiserver"_s,
                                u"com.apple.UserNotificationCenter"_s, u"com.apple.coreservices.uiagent"_s,
                                u"com.apple.ScreenSaver.Engine"_s, u"com.apple.WindowManager"_s,
                                u"com.apple.wallpaper.agent"_s, u"org.kelvane.Kelvane"_s}));
        QCOMPARE(AppCatalog::ignored().size(), 14);
    }

    void theCopyInTheEarlierFolderWins_data() {
        QTest::addColumn<QString>("earlier");
        QTest::addColumn<QString>("later");
        Fakes::World world;
        const QStringList folders = AppCatalog::searchFolders(world.folders);
        for (qsizetype i = 0; i + 1 < folders.size(); ++i)
            QTest::addRow("%s before %s", qPrintable(folders[i]), qPrintable(folders[i + 1]))
                << folders[i] << folders[i + 1];
        QTest::newRow("/Applications before the user's own") << folders.first() << folders.last();
    }
    void theCopyInTheEarlierFolderWins() {
        QFETCH(const QString, earlier);
        QFETCH(const QString, later);
        m_world->install(u"com.a"_s, u"A"_s, later);
        const QString path = m_world->install(u"com.a"_s, u"A"_s, earlier);
        AppCatalog catalog(m_world->bundles, m_world->folders);
        QCOMPARE(catalog.installedApps(), (QList<AppInfo>{{u"com.a"_s, u"A"_s, path}}));
    }

    void inOneFolderTheFirstListedCopyWins() {
        m_world->install(u"com.a"_s, u"Z"_s);
        m_world->install(u"com.a"_s, u"A"_s);
        AppCatalog catalog(m_world->bundles, m_world->folders);
        QCOMPARE(names(catalog.installedApps()), QStringList{u"Z"_s});
    }

    void anApplicationInASubFolderIsFoundByItsIdentifierOnly() {
        const QString path = u"/Applications/Games/Chess.app"_s;
        m_world->bundles.add(path, u"com.apple.Chess"_s, u"Chess"_s);
        m_world->folders.listing[u"/Applications"_s] = {u"/Applications/Games"_s};
        m_world->folders.listing[u"/Applications/Games"_s] = {path};
        AppCatalog catalog(m_world->bundles, m_world->folders);
        QVERIFY(catalog.installedApps().isEmpty());
        QCOMPARE(catalog.info(u"com.apple.Chess"_s), (AppInfo{u"com.apple.Chess"_s, u"Chess"_s, path}));
        QVERIFY(catalog.isInstalled(u"com.apple.Chess"_s));
    }

    void theFinderAndTheDockAreNeverListedButKnown() {
        m_world->install(u"com.apple.finder"_s, u"Finder"_s);
        m_world->install(u"com.apple.dock"_s, u"Dock"_s);
        m_world->install(u"org.kelvane.Kelvane"_s, u"Kelvane"_s);
        m_world->install(u"com.a"_s, u"A"_s);
        AppCatalog catalog(m_world->bundles, m_world->folders);
        QCOMPARE(names(catalog.installedApps()), QStringList{u"A"_s});
        QVERIFY(catalog.info(u"com.apple.finder"_s));
        QVERIFY(catalog.info(u"com.apple.dock"_s));
    }

    void aMissingFolderChangesNothing() {
        m_world->install(u"com.a"_s, u"A"_s, u"/Applications"_s);
        m_world->install(u"com.b"_s, u"B"_s, u"/Users/x/Applications"_s);
        QVERIFY(!m_world->folders.listing.contains(u"/Applications/Setapp"_s));
        AppCatalog catalog(m_world->bundles, m_world->folders);
        QCOMPARE(names(catalog.installedApps()), (QStringList{u"A"_s, u"B"_s}));
    }

    void takesOnlyEntriesEndingInApp_data() {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<bool>("listed");
        QTest::newRow("an application") << u"A.app"_s << true;
        QTest::newRow("two dots") << u"A.b.app"_s << true;
        QTest::newRow("spaces and other scripts") << u"Übung 日本.app"_s << true;
        QTest::newRow("upper-case .APP is none") << u"A.APP"_s << false;
        QTest::newRow("mixed-case .App is none") << u"A.App"_s << false;
        QTest::newRow("no extension is none") << u"A"_s << false;
        QTest::newRow("the word without a dot is none") << u"Aapp"_s << false;
        QTest::newRow("another extension is none") << u"A.bundle"_s << false;
        QTest::newRow("an extension after it is none") << u"A.app.zip"_s << false;
        QTest::newRow("nothing but the extension is none") << u".app"_s << false;
    }
    void takesOnlyEntriesEndingInApp() {
        QFETCH(const QString, entry);
        QFETCH(const bool, listed);
        const QString path = u"/Applications/"_s + entry;
        m_world->bundles.add(path, u"com.a"_s, u"A"_s);
        m_world->folders.listing[u"/Applications"_s] = {path};
        AppCatalog catalog(m_world->bundles, m_world->folders);
        QCOMPARE(catalog.installedApps().size(), listed ? 1 : 0);
        QCOMPARE(m_world->bundles.reads.value(path), listed ? 1 : 0);
    }

    void whatIsNoBundleOrHasNoIdentifierIsSkipped() {
        m_world->bundles.add(u"/Applications/A.app"_s, std::nullopt, u"A"_s);
        m_world->folders.listing[u"/Applications"_s] = {u"/Applications/A.app"_s, u"/Applications/Gone.app"_s};
        m_world->install(u"com.b"_s, u"B"_s);
        AppCatalog catalog(m_world->bundles, m_world->folders);
        QCOMPARE(names(catalog.installedApps()), QStringList{u"B"_s});
    }

    void sortsByName_data() {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QStringList>("scanned");
        QTest::addColumn<QStringList>("sorted");
        const QLocale english(QLocale::English, QLocale::UnitedStates);
        const QLocale swedish(QLocale::Swedish, QLocale::Sweden);
        QTest::newRow("case is ignored") << english << QStringList{u"beta"_s, u"Alpha"_s, u"Gamma"_s, u"delta"_s}
                                         << QStringList{u"Alpha"_s, u"beta"_s, u"delta"_s, u"Gamma"_s};
        QTest::newRow("names that differ only in case keep their scan order")
            << english << QStringList{u"mail"_s, u"MAIL"_s, u"Mail"_s, u"A"_s}
            << QStringList{u"A"_s, u"mail"_s, u"MAIL"_s, u"Mail"_s};
        QTest::newRow("the other way round, too")
            << english << QStringList{u"Mail"_s, u"MAIL"_s, u"mail"_s} << QStringList{u"Mail"_s, u"MAIL"_s, u"mail"_s};
        QTest::newRow("an English reader finds Ö beside O")
            << english << QStringList{u"Zebra"_s, u"Örtlich"_s, u"Opus"_s, u"Paint"_s}
            << QStringList{u"Opus"_s, u"Örtlich"_s, u"Paint"_s, u"Zebra"_s};
        QTest::newRow("a Swedish reader finds Ö behind Z")
            << swedish << QStringList{u"Zebra"_s, u"Örtlich"_s, u"Opus"_s, u"Paint"_s}
            << QStringList{u"Opus"_s, u"Paint"_s, u"Zebra"_s, u"Örtlich"_s};
    }
    void sortsByName() {
        QFETCH(const QLocale, locale);
        QFETCH(const QStringList, scanned);
        QFETCH(const QStringList, sorted);
        QLocale::setDefault(locale);
        int number = 0;
        for (const QString& name : scanned) {
            const QString path = u"/Applications/%1.app"_s.arg(number);
            m_world->bundles.add(path, u"com.%1"_s.arg(number++), name);
            m_world->folders.listing[u"/Applications"_s].append(path);
        }
        AppCatalog catalog(m_world->bundles, m_world->folders);
        QCOMPARE(names(catalog.installedApps()), sorted);
    }

    void scansOnceUntilAskedAgain() {
        const QString path = m_world->install(u"com.a"_s, u"A"_s);
        AppCatalog catalog(m_world->bundles, m_world->folders);
        catalog.installedApps();
        catalog.installedApps();
        QCOMPARE(m_world->bundles.reads.value(path), 1);

        m_world->install(u"com.b"_s, u"B"_s);
        QCOMPARE(names(catalog.installedApps()), QStringList{u"A"_s});
        QCOMPARE(names(catalog.installedApps(AppCatalog::Scan::refresh)), (QStringList{u"A"_s, u"B"_s}));
        QCOMPARE(names(catalog.installedApps()), (QStringList{u"A"_s, u"B"_s}));
        QCOMPARE(m_world->bundles.reads.value(path), 2);
    }

    void anEmptyScanIsKeptToo() {
        AppCatalog catalog(m_world->bundles, m_world->folders);
        QVERIFY(catalog.installedApps().isEmpty());
        m_world->install(u"com.a"_s, u"A"_s);
        QVERIFY(catalog.installedApps().isEmpty());
    }

    void afterAScanNoScannedApplicationIsLookedUp() {
        for (int i = 0; i < 20; ++i)
            m_world->install(u"com.%1"_s.arg(i), u"A%1"_s.arg(i));
        AppCatalog catalog(m_world->bundles, m_world->folders);
        for (const AppInfo& app : catalog.installedApps())
            QCOMPARE(catalog.info(app.bundleID), app);
        QVERIFY(m_world->bundles.lookups.isEmpty());
        for (const int reads : std::as_const(m_world->bundles.reads))
            QCOMPARE(reads, 1);
    }

    void anUnknownIdentifierIsAskedForOnce() {
        AppCatalog catalog(m_world->bundles, m_world->folders);
        QVERIFY(!catalog.info(u"com.nobody"_s));
        QVERIFY(!catalog.info(u"com.nobody"_s));
        QVERIFY(!catalog.isInstalled(u"com.nobody"_s));
        QCOMPARE(m_world->bundles.lookups.value(u"com.nobody"_s), 1);
    }

    void aRememberedMissEndsWithTheScanThatFindsIt() {
        AppCatalog catalog(m_world->bundles, m_world->folders);
        QVERIFY(!catalog.info(u"com.a"_s));
        m_world->install(u"com.a"_s, u"A"_s);
        QVERIFY(!catalog.info(u"com.a"_s));
        catalog.installedApps(AppCatalog::Scan::refresh);
        QVERIFY(catalog.info(u"com.a"_s));
        QCOMPARE(m_world->bundles.lookups.value(u"com.a"_s), 1);
    }

    void aKnownAnswerOutlivesALaterScan() {
        m_world->bundles.add(u"/Elsewhere/A.app"_s, u"com.a"_s, u"A"_s);
        AppCatalog catalog(m_world->bundles, m_world->folders);
        QCOMPARE(catalog.info(u"com.a"_s)->path, u"/Elsewhere/A.app"_s);
        m_world->install(u"com.a"_s, u"A"_s);
        QCOMPARE(catalog.installedApps(AppCatalog::Scan::refresh).first().path, u"/Applications/A.app"_s);
        QCOMPARE(catalog.info(u"com.a"_s)->path, u"/Elsewhere/A.app"_s);
    }

    void identifiersAreComparedCaseAndAll() {
        m_world->install(u"com.Apple.Mail"_s, u"Mail"_s);
        m_world->install(u"com.apple.mail"_s, u"Mail 2"_s);
        AppCatalog catalog(m_world->bundles, m_world->folders);
        QCOMPARE(catalog.installedApps().size(), 2);
        QVERIFY(!catalog.info(u"com.apple.MAIL"_s));
    }

    void queriesDoNotWaitForFilesBeingRead_data() {
        QTest::addColumn<bool>("scans");
        QTest::newRow("a scan") << true;
        QTest::newRow("a look for one application") << false;
    }
    void queriesDoNotWaitForFilesBeingRead() {
        QFETCH(const bool, scans);
        AskedMeanwhile bundles;
        Fakes::Folders folders;
        AppCatalog catalog(bundles, folders);
        bundles.catalog = &catalog;
        folders.listing[u"/Applications"_s] = {u"/Applications/A.app"_s};
        bundles.add(u"/Applications/A.app"_s, u"com.a"_s, u"A"_s);
        QVERIFY(!catalog.isInstalled(u"com.known"_s));
        bundles.isAsked = true;
        if (scans)
            catalog.installedApps(AppCatalog::Scan::refresh);
        else
            QVERIFY(catalog.isInstalled(u"com.a"_s));
        QVERIFY(bundles.answers > 0);
        QVERIFY(!bundles.isBlocked);
    }

    void manyThreadsMayAskAtOnce() {
        for (int i = 0; i < 50; ++i)
            m_world->install(u"com.%1"_s.arg(i), u"A%1"_s.arg(i));
        AppCatalog catalog(m_world->bundles, m_world->folders);
        std::vector<std::thread> threads;
        std::atomic<int> found = 0;
        for (int thread = 0; thread < 4; ++thread) {
            threads.emplace_back([&] {
                for (int i = 0; i < 60; ++i)
                    found += catalog.isInstalled(u"com.%1"_s.arg(i)) ? 1 : 0;
                found += static_cast<int>(catalog.installedApps(AppCatalog::Scan::refresh).size());
            });
        }
        for (std::thread& thread : threads)
            thread.join();
        QCOMPARE(found, 4 * 100);
    }

private:
    std::unique_ptr<Fakes::World> m_world;
};

QTEST_GUILESS_MAIN(AppCatalogTest)
#include "AppCatalogTest.moc"
