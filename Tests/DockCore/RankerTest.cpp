#include "DockCore/Ranker.h"

#include "DockCore/AppCatalog.h"
#include "DockCore/UsageStore.h"
#include "Support/FakeServices.h"
#include "Support/Seeds.h"
#include "Support/TimeZone.h"
#include "Support/ValueTraits.h"

#include <QTest>

#include <algorithm>

using namespace DockCore;
using namespace Qt::StringLiterals;

static_assert(isValue<AppScore>);

namespace {
enum class Spotlight { exclude, include };

QStringList names(const QList<AppScore>& ranking) {
    QStringList names;
    for (const AppScore& score : ranking)
        names.append(score.app.name);
    return names;
}
} // namespace

class RankerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_world = std::make_unique<Fakes::World>();
        m_usage.emplace(m_world->directory.filePath(u"usage.json"_s));
    }
    void cleanup() {
        m_usage.reset();
        m_world.reset();
    }

    void weighsASpotlightDay_data() {
        QTest::addColumn<int>("tracked");
        QTest::addColumn<UsageWindow>("window");
        QTest::addColumn<double>("weight");
        QTest::newRow("10 with nothing tracked") << 0 << UsageWindow::week << 10.0;
        QTest::newRow("less with 2 of 7 days") << 2 << UsageWindow::week << (1 - 2.0 / 7) * 10;
        QTest::newRow("5 with half a month") << 15 << UsageWindow::month << 5.0;
        QTest::newRow("nothing with a full week") << 7 << UsageWindow::week << 0.0;
        QTest::newRow("nothing with a full month") << 30 << UsageWindow::month << 0.0;
        QTest::newRow("never below nothing") << 31 << UsageWindow::month << 0.0;
    }
    void weighsASpotlightDay() {
        QFETCH(const int, tracked);
        QFETCH(const UsageWindow, window);
        QFETCH(const double, weight);
        QCOMPARE(Ranker::spotlightWeight(tracked, window), weight);
    }

    void anEmptyStoreWithoutSpotlightRanksNothing() {
        opened(install(u"A"_s), 3);
        QVERIFY(rank(UsageWindow::week, Spotlight::exclude).isEmpty());
        QVERIFY(m_world->metadata.lookups.isEmpty());
    }

    void ninetySecondsAndOneActivationScoreThreeAndAHalf() {
        const AppInfo app = install(u"A"_s);
        m_usage->addSeconds(90, app.bundleID, {}, now());
        m_usage->addActivation(app.bundleID, {}, now());
        QCOMPARE(rank(UsageWindow::week, Spotlight::exclude),
                 (QList<AppScore>{{app, 90, 1, 1, 0, std::nullopt, 3.5, 1.5, 2, 0}}));
    }

    void anUntrackedApplicationScoresByItsSpotlightDays_data() {
        QTest::addColumn<int>("tracked");
        QTest::addColumn<double>("score");
        QTest::newRow("30 for three days with nothing tracked") << 0 << 30.0;
        QTest::newRow("about 21.43 with 2 of 7 days tracked") << 2 << 3 * (1 - 2.0 / 7) * 10;
    }
    void anUntrackedApplicationScoresByItsSpotlightDays() {
        QFETCH(const int, tracked);
        QFETCH(const double, score);
        const AppInfo app = install(u"A"_s);
        opened(app, 3);
        track(tracked);
        const QList<AppScore> ranking = rank(UsageWindow::week, Spotlight::include);
        QCOMPARE(ranking.size(), 1);
        QCOMPARE(ranking[0], (AppScore{app, 0, 0, 0, 3, now(), ranking[0].score, 0, 0, ranking[0].score}));
        QCOMPARE(ranking[0].score, score);
    }

    void withAFullWindowSpotlightIsNotAsked_data() {
        QTest::addColumn<UsageWindow>("window");
        QTest::addColumn<int>("tracked");
        QTest::newRow("a week") << UsageWindow::week << 7;
        QTest::newRow("a month") << UsageWindow::month << 30;
        QTest::newRow("a week out of a month") << UsageWindow::week << 30;
    }
    void withAFullWindowSpotlightIsNotAsked() {
        QFETCH(const UsageWindow, window);
        QFETCH(const int, tracked);
        const AppInfo used = install(u"Used"_s);
        const AppInfo unused = install(u"Unused"_s);
        opened(used, 3);
        opened(unused, 3);
        track(tracked);
        m_usage->addSeconds(60, used.bundleID, {}, now());
        const QList<AppScore> ranking = rank(window, Spotlight::include);
        QCOMPARE(names(ranking), QStringList{u"Used"_s});
        QVERIFY(!ranking[0].lastUsed);
        QCOMPARE(ranking[0].spotlightDays, 0);
        QVERIFY(m_world->metadata.lookups.isEmpty());
    }

    void aMonthWithOneDayMissingStillAsks() {
        const AppInfo app = install(u"A"_s);
        opened(app, 1);
        track(29);
        const QList<AppScore> ranking = rank(UsageWindow::month, Spotlight::include);
        QCOMPARE(ranking.size(), 1);
        QCOMPARE(ranking[0].score, (1 - 29.0 / 30) * 10);
    }

    void everythingAddsUp() {
        const AppInfo app = install(u"A"_s);
        opened(app, 2);
        for (int age = 0; age < 4; ++age)
            m_usage->addSeconds(30, app.bundleID, {}, now().addDays(-age));
        m_usage->addActivation(app.bundleID, {}, now());
        const QList<AppScore> ranking = rank(UsageWindow::week, Spotlight::include);
        QCOMPARE(ranking.size(), 1);
        QCOMPARE(ranking[0], (AppScore{app, 120, 1, 4, 2, now(), ranking[0].score, 2, 2, (1 - 4.0 / 7) * 10 * 2}));
        QCOMPARE(ranking[0].score, 120.0 / 60 + 2 * 1 + (1 - 4.0 / 7) * 10 * 2);
    }

    void whatIsNoLongerInstalledIsNotRanked() {
        m_usage->addSeconds(6000, u"com.gone"_s, u"Gone"_s, now());
        QVERIFY(rank(UsageWindow::week, Spotlight::include).isEmpty());
        QVERIFY(rank(UsageWindow::week, Spotlight::exclude).isEmpty());
    }

    void whatIsInstalledElsewhereIsRanked() {
        m_world->bundles.add(u"/Volumes/Disk/A.app"_s, u"com.a"_s, u"A"_s);
        m_usage->addSeconds(60, u"com.a"_s, u"A"_s, now());
        QCOMPARE(names(rank(UsageWindow::week, Spotlight::exclude)), QStringList{u"A"_s});
    }

    void theIgnoredAreNeverRanked() {
        for (const QString& bundleID : AppCatalog::ignored()) {
            opened({bundleID, bundleID, m_world->install(bundleID, bundleID)}, 5);
            m_usage->addSeconds(1e6, bundleID, {}, now());
        }
        QVERIFY(rank(UsageWindow::week, Spotlight::exclude).isEmpty());
        QVERIFY(rank(UsageWindow::week, Spotlight::include).isEmpty());
        QVERIFY(m_world->metadata.lookups.isEmpty());
    }

    void whatScoresNothingIsLeftOut_data() {
        QTest::addColumn<double>("seconds");
        QTest::addColumn<bool>("ranked");
        QTest::newRow("no seconds") << 0.0 << false;
        QTest::newRow("negative seconds") << -60.0 << false;
        QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << false;
        QTest::newRow("a tiny moment is enough") << 1e-6 << true;
    }
    void whatScoresNothingIsLeftOut() {
        QFETCH(const double, seconds);
        QFETCH(const bool, ranked);
        m_usage->addSeconds(seconds, install(u"A"_s).bundleID, {}, now());
        QCOMPARE(rank(UsageWindow::week, Spotlight::exclude).size(), ranked ? 1 : 0);
        QCOMPARE(rank(UsageWindow::week, Spotlight::include).size(), ranked ? 1 : 0);
    }

    void ranksTheBestFirst() {
        m_usage->addSeconds(60, install(u"One"_s).bundleID, {}, now());
        m_usage->addSeconds(180, install(u"Three"_s).bundleID, {}, now());
        m_usage->addActivation(install(u"Two"_s).bundleID, {}, now());
        QCOMPARE(names(rank(UsageWindow::week, Spotlight::exclude)), (QStringList{u"Three"_s, u"Two"_s, u"One"_s}));
    }

    void equalScoresAreOrderedByName_data() {
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("by letter") << QStringList{u"Alpha"_s, u"Beta"_s, u"Gamma"_s};
        QTest::newRow("upper case before lower case") << QStringList{u"Zebra"_s, u"alpha"_s, u"beta"_s};
        QTest::newRow("a prefix first") << QStringList{u"Mail"_s, u"Mail "_s, u"Mailer"_s};
        QTest::newRow("accents behind ASCII") << QStringList{u"Zebra"_s, u"zebra"_s, u"\u00C9clair"_s};
        QTest::newRow("decomposed letters as their composed form")
            << QStringList{u"E\u0302"_s /* U+00CA */, u"\u00CB"_s, u"I\u0302"_s /* U+00CE */, u"\u00CF"_s};
        QTest::newRow("a name beyond the basic plane behind the last of it")
            << QStringList{u"A"_s, u"\uFF21"_s, u"\uFFEE"_s, u"\U00010400"_s, u"\U0001F600"_s};
    }
    void equalScoresAreOrderedByName() {
        QFETCH(const QStringList, expected);
        for (bool reversed : {false, true}) {
            cleanup();
            init();
            QStringList order = expected;
            if (reversed)
                std::reverse(order.begin(), order.end());
            for (qsizetype i = 0; i < order.size(); ++i) {
                m_world->bundles.add(u"/Applications/%1.app"_s.arg(i), u"com.%1"_s.arg(i), order[i]);
                m_usage->addSeconds(60, u"com.%1"_s.arg(i), {}, now());
            }
            QCOMPARE(names(rank(UsageWindow::week, Spotlight::exclude)), expected);
        }
    }

    void equalScoresAndNamesAreTheSameEveryTime() {
        for (int i = 0; i < 50; ++i) {
            m_world->bundles.add(u"/Applications/%1.app"_s.arg(i), u"com.%1"_s.arg(i, 2, 10, QChar(u'0')), u"Same"_s);
            m_usage->addSeconds(60, u"com.%1"_s.arg(i, 2, 10, QChar(u'0')), {}, now());
        }
        const QList<AppScore> ranking = rank(UsageWindow::week, Spotlight::exclude);
        QCOMPARE(ranking.size(), 50);
        for (int i = 0; i < 50; ++i)
            QCOMPARE(ranking[i].app.bundleID, u"com.%1"_s.arg(i, 2, 10, QChar(u'0')));
    }

    void oneApplicationUnderTwoSpellingsIsCountedUnderEach() {
        const AppInfo mail = install(u"Mail"_s);
        AppCatalog catalog(m_world->bundles, m_world->folders);
        m_world->bundles.capitals = Fakes::Bundles::Capitals::equal;
        for (const auto& [bundleID, seconds] :
             {std::pair(u"com.MAIL"_s, 60), {u"com.Mail"_s, 120}, {u"com.mail"_s, 120}})
            m_usage->addSeconds(seconds, bundleID, {}, now());
        const QList<AppScore> ranking = Ranker::rank(*m_usage, UsageWindow::week, catalog, nullptr, now());
        QList<double> seconds;
        for (const AppScore& score : ranking) {
            QCOMPARE(score.app, mail);
            seconds.append(score.seconds);
        }
        QCOMPARE(seconds, QList<double>({120, 120, 60}));
    }

    void anIdentifierIsIgnoredAsItIsCounted() {
        m_world->bundles.capitals = Fakes::Bundles::Capitals::equal;
        const QString dock = u"/System/Library/CoreServices/Dock.app"_s;
        m_world->bundles.add(dock, u"com.apple.Dock"_s, u"Dock"_s);
        m_world->opened(dock, {now()});
        m_usage->addSeconds(60, u"com.apple.dock"_s, {}, now());
        QVERIFY(rank(UsageWindow::week, Spotlight::include).isEmpty());
    }

    void theCopyThatIsCountedStaysWhenAScanFindsAnother() {
        const QString elsewhere = u"/Volumes/Disk/A.app"_s;
        m_world->bundles.add(elsewhere, u"com.A"_s, u"A"_s);
        AppCatalog catalog(m_world->bundles, m_world->folders);
        QVERIFY(catalog.isInstalled(u"com.A"_s));
        opened(install(u"A"_s), 3);
        m_usage->addSeconds(60, u"com.A"_s, {}, now());
        const QList<AppScore> ranking = Ranker::rank(*m_usage, UsageWindow::week, catalog, &m_world->metadata, now());
        QCOMPARE(ranking.size(), 1);
        QCOMPARE(ranking[0].app.path, elsewhere);
        QCOMPARE(ranking[0].spotlightDays, 0);
    }

    void theWindowsDiffer() {
        m_usage->addSeconds(600, install(u"Lately"_s).bundleID, {}, now());
        m_usage->addSeconds(6000, install(u"Before"_s).bundleID, {}, now().addDays(-20));
        QCOMPARE(names(rank(UsageWindow::week, Spotlight::exclude)), QStringList{u"Lately"_s});
        QCOMPARE(names(rank(UsageWindow::month, Spotlight::exclude)), (QStringList{u"Before"_s, u"Lately"_s}));
    }

    void theBundlesAreReadOnce() {
        for (int i = 0; i < 10; ++i)
            m_usage->addSeconds(60, install(u"A%1"_s.arg(i)).bundleID, {}, now());
        AppCatalog catalog(m_world->bundles, m_world->folders);
        catalog.installedApps(AppCatalog::Scan::refresh);
        for (const UsageWindow window : allUsageWindows())
            Ranker::rank(*m_usage, window, catalog, &m_world->metadata, now());
        for (const int reads : std::as_const(m_world->bundles.reads))
            QCOMPARE(reads, 1);
        QVERIFY(m_world->bundles.lookups.isEmpty());
    }

    void holdsForAnyUsage_data() { Seeds::addRows(); }
    void holdsForAnyUsage() {
        QFETCH(const quint32, seed);
        QRandomGenerator random(seed);
        QList<AppInfo> apps;
        for (int i = 0; i < 40; ++i) {
            apps.append(install(u"A%1"_s.arg(i)));
            opened(apps.last(), random.bounded(0, 10));
        }
        for (const QString& bundleID : AppCatalog::ignored())
            apps.append({bundleID, bundleID, m_world->install(bundleID, bundleID)});
        for (int i = 0; i < 500; ++i) {
            const QString bundleID = apps[random.bounded(apps.size())].bundleID;
            const QDateTime at = now().addDays(-random.bounded(40));
            if (random.bounded(2) == 0)
                m_usage->addSeconds(random.bounded(200) - 20, bundleID, {}, at);
            else
                m_usage->addActivation(bundleID, {}, at);
        }
        for (const UsageWindow window : allUsageWindows()) {
            for (const Spotlight spotlight : {Spotlight::exclude, Spotlight::include}) {
                const QList<AppScore> ranking = rank(window, spotlight);
                QVERIFY(!ranking.isEmpty());
                QSet<QString> seen;
                for (qsizetype i = 0; i < ranking.size(); ++i) {
                    const AppScore& score = ranking[i];
                    QVERIFY(score.score > 0);
                    // To the last bit: the parts are what the score was added up from.
                    QVERIFY(score.score == score.minutePoints + score.activationPoints + score.spotlightPoints);
                    QVERIFY(!AppCatalog::ignored().contains(score.app.bundleID));
                    QVERIFY(!seen.contains(score.app.bundleID));
                    seen.insert(score.app.bundleID);
                    QVERIFY(i == 0 || ranking[i - 1].score >= score.score);
                }
                QCOMPARE(rank(window, spotlight), ranking);
            }
        }
    }

private:
    QDateTime now() const { return m_world->clock.now(); }

    AppInfo install(const QString& name) {
        const QString bundleID = u"com."_s + name;
        return {bundleID, name, m_world->install(bundleID, name)};
    }

    /// Opened today and on the days before, `days` in all.
    void opened(const AppInfo& app, int days) {
        QList<QDateTime> dates;
        for (int age = 0; age < days; ++age)
            dates.append(now().addDays(-age));
        m_world->opened(app.path, dates);
    }

    /// Lets today and the days before have a record, of something that is not installed.
    void track(int days) {
        for (int age = 0; age < days; ++age)
            m_usage->addSeconds(1, u"com.not.installed"_s, {}, now().addDays(-age));
    }

    QList<AppScore> rank(UsageWindow window, Spotlight spotlight) const {
        AppCatalog catalog(m_world->bundles, m_world->folders);
        return Ranker::rank(*m_usage, window, catalog, spotlight == Spotlight::include ? &m_world->metadata : nullptr,
                            now());
    }

    std::unique_ptr<Fakes::World> m_world;
    std::optional<UsageStore> m_usage;
    const Fakes::TimeZone m_zone = Fakes::TimeZone("Europe/Berlin");
};

QTEST_GUILESS_MAIN(RankerTest)
#include "RankerTest.moc"
