#include "DockCore/DefaultProfiles.h"

#include "DockCore/AppCatalog.h"
#include "Support/FakeServices.h"

#include <QTest>

using namespace DockCore;
using namespace Qt::StringLiterals;

namespace {
enum Starter { everyday, work, coding, meeting, personal };

/// One identifier a word.
QStringList words(const QString& text) {
    return text.split(u' ', Qt::SkipEmptyParts);
}

const QString leisure = u"com.spotify.client com.apple.Music com.apple.TV com.apple.Photos net.whatsapp.WhatsApp "
                        "com.apple.MobileSMS com.hnc.Discord com.valvesoftware.steam"_s;
const QString developer =
    u"com.apple.dt.Xcode com.microsoft.VSCode com.todesktop.230313mzl4w4u92 dev.zed.Zed com.jetbrains.intellij "
    "com.jetbrains.pycharm com.google.android.studio com.apple.Terminal com.googlecode.iterm2 com.mitchellh.ghostty "
    "dev.warp.Warp-Stable com.github.GitHubClient com.docker.docker com.postmanlabs.mac"_s;
const QString chat = u"com.tinyspeck.slackmacgap com.microsoft.teams2 com.microsoft.teams"_s;
const QString everything =
    u"com.apple.apps.launcher com.apple.launchpad.launcher com.apple.mail com.microsoft.Outlook com.apple.iCal "
    "us.zoom.xos com.cisco.webexmeetingsapp com.apple.FaceTime com.apple.Notes "_s +
    chat + u' ' + leisure + u' ' + developer;
} // namespace

class DefaultProfilesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_world = std::make_unique<Fakes::World>(); }
    void cleanup() { m_world.reset(); }

    void theTableHoldsWithNothingInstalled() {
        const QList<Profile> profiles = make();
        struct Row {
            QString name;
            QString symbol;
            qint64 adaptiveSlots;
            UsageWindow window;
            bool separatePinned;
        };
        const QList<Row> rows = {
            {u"Everyday"_s, u"sparkles"_s, 12, UsageWindow::month, false},
            {u"Work"_s, u"briefcase"_s, 8, UsageWindow::week, true},
            {u"Coding"_s, u"chevron.left.forwardslash.chevron.right"_s, 7, UsageWindow::week, true},
            {u"Meeting"_s, u"video"_s, 3, UsageWindow::week, true},
            {u"Personal"_s, u"house"_s, 6, UsageWindow::month, true},
        };
        QCOMPARE(profiles.size(), 5);
        QSet<QUuid> ids;
        for (qsizetype i = 0; i < 5; ++i) {
            QCOMPARE(profiles[i], (Profile{profiles[i].id,
                                           rows[i].name,
                                           rows[i].symbol,
                                           {},
                                           {},
                                           rows[i].adaptiveSlots,
                                           rows[i].window,
                                           rows[i].separatePinned}));
            ids.insert(profiles[i].id);
        }
        QCOMPARE(ids.size(), 5);
    }

    void withEverythingInstalledTheListsAreInOrder() {
        install(everything);
        const QList<Profile> profiles = make();
        const QString first = u"com.apple.apps.launcher "_s;
        QCOMPARE(profiles[everyday].pinned, words(first));
        QCOMPARE(profiles[everyday].excluded, QStringList());
        QCOMPARE(profiles[work].pinned, words(first + u"com.apple.mail com.microsoft.Outlook com.apple.iCal "
                                                      "com.tinyspeck.slackmacgap com.microsoft.teams2"_s));
        QCOMPARE(profiles[work].excluded, words(leisure));
        QCOMPARE(profiles[coding].pinned, words(first + u"com.apple.dt.Xcode com.microsoft.VSCode "
                                                        "com.todesktop.230313mzl4w4u92 dev.zed.Zed"_s));
        QCOMPARE(profiles[coding].excluded, words(leisure));
        QCOMPARE(profiles[meeting].pinned, words(first + u"us.zoom.xos com.microsoft.teams2 com.microsoft.teams "
                                                         "com.cisco.webexmeetingsapp"_s));
        QCOMPARE(profiles[meeting].excluded, words(leisure + u' ' + developer));
        QCOMPARE(profiles[personal].pinned,
                 words(first + u"com.spotify.client com.apple.Music com.apple.TV com.apple.Photos"_s));
        QCOMPARE(profiles[personal].excluded, words(chat + u' ' + developer + u" com.microsoft.Outlook"_s));
    }

    void everyListedApplicationCanBePinned_data() {
        QTest::addColumn<QString>("bundleID");
        QTest::addColumn<QList<int>>("pinnedIn");
        const QSet<QString> working = {u"com.apple.mail"_s,       u"com.microsoft.Outlook"_s,
                                       u"com.apple.iCal"_s,       u"com.tinyspeck.slackmacgap"_s,
                                       u"com.microsoft.teams2"_s, u"com.microsoft.teams"_s};
        const QSet<QString> talking = {
            u"us.zoom.xos"_s,     u"com.microsoft.teams2"_s, u"com.microsoft.teams"_s, u"com.cisco.webexmeetingsapp"_s,
            u"com.hnc.Discord"_s, u"com.apple.FaceTime"_s,   u"com.apple.iCal"_s,      u"com.apple.Notes"_s};
        for (const QString& bundleID : words(everything)) {
            QList<int> profiles;
            if (bundleID.contains(u"launcher"))
                profiles = {everyday, work, coding, meeting, personal};
            if (working.contains(bundleID))
                profiles.append(work);
            if (words(developer).contains(bundleID))
                profiles.append(coding);
            if (talking.contains(bundleID))
                profiles.append(meeting);
            if (words(leisure).contains(bundleID))
                profiles.append(personal);
            QTest::newRow(qPrintable(bundleID)) << bundleID << profiles;
        }
    }
    void everyListedApplicationCanBePinned() {
        QFETCH(const QString, bundleID);
        QFETCH(const QList<int>, pinnedIn);
        install(bundleID);
        const QList<Profile> profiles = make();
        for (int i = 0; i < 5; ++i)
            QCOMPARE(profiles[i].pinned, pinnedIn.contains(i) ? QStringList{bundleID} : QStringList());
    }

    void theFirstInstalledLauncherIsPinned_data() {
        QTest::addColumn<QString>("installed");
        QTest::addColumn<QStringList>("pinned");
        QTest::newRow("of both the first")
            << u"com.apple.launchpad.launcher com.apple.apps.launcher"_s << QStringList{u"com.apple.apps.launcher"_s};
        QTest::newRow("the second where there is no other")
            << u"com.apple.launchpad.launcher"_s << QStringList{u"com.apple.launchpad.launcher"_s};
        QTest::newRow("none where there is none") << u"com.apple.Notes"_s << QStringList();
    }
    void theFirstInstalledLauncherIsPinned() {
        QFETCH(const QString, installed);
        QFETCH(const QStringList, pinned);
        install(installed);
        QCOMPARE(make()[everyday].pinned, pinned);
    }

    void recentOnesComeFirst_data() {
        QTest::addColumn<QString>("used");
        QTest::addColumn<QString>("pinned");
        const auto row = [](const char* name, const QString& used, const QString& pinned) {
            QTest::newRow(name) << used << pinned;
        };
        row("without dates the installed ones stay in list order", u""_s,
            u"com.apple.mail com.microsoft.Outlook com.apple.iCal com.tinyspeck.slackmacgap com.microsoft.teams2"_s);
        row("with only old dates, too", u"com.apple.iCal=91 com.microsoft.teams=200"_s,
            u"com.apple.mail com.microsoft.Outlook com.apple.iCal com.tinyspeck.slackmacgap com.microsoft.teams2"_s);
        row("one used 3 days ago and one 100 days ago give the first only", u"com.apple.iCal=3 com.apple.mail=100"_s,
            u"com.apple.iCal"_s);
        row("the latest comes first", u"com.apple.mail=5 com.apple.iCal=1 com.microsoft.teams=3"_s,
            u"com.apple.iCal com.microsoft.teams com.apple.mail"_s);
        row("equal dates keep the list's order", u"com.microsoft.teams2=2 com.apple.iCal=2 com.apple.mail=2"_s,
            u"com.apple.mail com.apple.iCal com.microsoft.teams2"_s);
        row("exactly 90 days ago counts", u"com.apple.iCal=90"_s, u"com.apple.iCal"_s);
        row("both kinds of Teams can be pinned", u"com.microsoft.teams2=2 com.microsoft.teams=1"_s,
            u"com.microsoft.teams com.microsoft.teams2"_s);
        row("at most five are taken",
            u"com.apple.mail=6 com.microsoft.Outlook=5 com.apple.iCal=4 com.tinyspeck.slackmacgap=3 "
            "com.microsoft.teams2=2 com.microsoft.teams=1"_s,
            u"com.microsoft.teams com.microsoft.teams2 com.tinyspeck.slackmacgap com.apple.iCal "
            "com.microsoft.Outlook"_s);
        row("the future counts as late", u"com.apple.iCal=-3 com.apple.mail=1"_s, u"com.apple.iCal com.apple.mail"_s);
    }
    void recentOnesComeFirst() {
        QFETCH(const QString, used);
        QFETCH(const QString, pinned);
        install(u"com.apple.mail com.microsoft.Outlook com.apple.iCal "_s + chat);
        for (const QString& use : words(used)) {
            const QStringList parts = use.split(u'=');
            const QDateTime date = m_world->clock.now().addSecs(-parts[1].toLongLong() * 86400);
            m_world->metadata.items[m_paths[parts[0]]].lastUsedDate = date;
        }
        QCOMPARE(make()[work].pinned, words(pinned));
    }

    void aSecondBeyondNinetyDaysIsNotRecent() {
        install(u"com.apple.iCal com.apple.mail"_s);
        m_world->opened(m_paths[u"com.apple.iCal"_s], {m_world->clock.now().addSecs(-7776001)});
        QCOMPARE(make()[work].pinned, words(u"com.apple.mail com.apple.iCal"_s));
    }

    void discordMayBePinnedAndExcludedAtOnce() {
        install(u"com.hnc.Discord"_s);
        const Profile profile = make()[meeting];
        QCOMPARE(profile.pinned, QStringList{u"com.hnc.Discord"_s});
        QCOMPARE(profile.excluded, QStringList{u"com.hnc.Discord"_s});
    }

    void anApplicationAnywhereCountsAsInstalled() {
        m_world->bundles.add(u"/Volumes/Disk/Notes.app"_s, u"com.apple.Notes"_s, u"Notes"_s);
        QCOMPARE(make()[meeting].pinned, QStringList{u"com.apple.Notes"_s});
    }

private:
    QList<Profile> make() const {
        AppCatalog catalog(m_world->bundles, m_world->folders);
        return DefaultProfiles::make(catalog, m_world->metadata, m_world->clock.now());
    }

    void install(const QString& bundleIDs) {
        m_paths.clear();
        for (const QString& bundleID : words(bundleIDs))
            m_paths.insert(bundleID, m_world->install(bundleID, bundleID));
    }

    std::unique_ptr<Fakes::World> m_world;
    QHash<QString, QString> m_paths;
};

QTEST_GUILESS_MAIN(DefaultProfilesTest)
#include "DefaultProfilesTest.moc"
