#include "DockCore/LayoutPlanner.h"

#include "DockCore/AppCatalog.h"
#include "Support/DockNotation.h"
#include "Support/FakeServices.h"
#include "Support/Seeds.h"

#include <QTest>

#include <limits>

using namespace DockCore;
using namespace Qt::StringLiterals;

namespace {
QStringList words(const QString& text) {
    return text.split(u' ', Qt::SkipEmptyParts);
}

/// Tiles that their labels tell apart.
QList<DockTile> dock(const QString& notation) {
    QList<DockTile> tiles = DockNotation::tiles(notation);
    for (qsizetype place = 0; place < tiles.size(); ++place)
        tiles[place].label = u"tile %1"_s.arg(place);
    return tiles;
}

/// The same words for a plan.
QString notation(const QList<DockTile>& tiles) {
    QStringList words;
    for (const DockTile& tile : tiles)
        words.append(tile.bundleID ? *tile.bundleID : tile.kind == DockTile::Kind::smallSpacer ? u"_"_s : u"?"_s);
    return words.join(u' ');
}

QList<AppScore> ranking(const QStringList& bundleIDs) {
    QList<AppScore> ranking;
    double score = 1000;
    for (const QString& bundleID : bundleIDs) {
        AppScore entry;
        entry.app = {bundleID, bundleID, u"/Applications/%1.app"_s.arg(bundleID)};
        entry.score = score--;
        ranking.append(entry);
    }
    return ranking;
}

Profile profile(const QString& pinned, const QString& excluded, qint64 adaptiveSlots, bool separatePinned) {
    return Profile::make(u"Test"_s, u"video"_s, words(pinned), words(excluded), adaptiveSlots, UsageWindow::week,
                         separatePinned);
}
} // namespace

class LayoutPlannerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_world = std::make_unique<Fakes::World>();
        for (const QString& bundleID : words(u"a b c d e f com.apple.mail com.apple.finder"_s))
            m_world->install(bundleID, bundleID);
    }
    void cleanup() { m_world.reset(); }

    void plans_data() {
        QTest::addColumn<QString>("pinned");
        QTest::addColumn<QString>("excluded");
        QTest::addColumn<qint64>("slots");
        QTest::addColumn<bool>("separate");
        QTest::addColumn<QString>("ranked");
        QTest::addColumn<QString>("current");
        QTest::addColumn<QString>("expected");
        struct Row {
            QString pinned = {};
            QString excluded = {};
            qint64 slotCount = 0;
            bool separate = false;
            QString ranked = {};
            QString current = {};
            QString expected = {};
        };
        const auto row = [](const char* name, const Row& values) {
            QTest::newRow(name) << values.pinned << values.excluded << values.slotCount << values.separate
                                << values.ranked << values.current << values.expected;
        };
        row("nothing gives nothing", {});
        row("an empty Dock, nothing ranked, Mail pinned",
            {.pinned = u"com.apple.mail"_s, .slotCount = 3, .separate = true, .expected = u"com.apple.mail"_s});
        row("pinned, a small spacer, then by use",
            {.pinned = u"b a"_s, .slotCount = 2, .separate = true, .ranked = u"d c e"_s, .expected = u"b a _ d c"_s});
        row("no spacer unless wanted",
            {.pinned = u"b a"_s, .slotCount = 2, .ranked = u"d c e"_s, .expected = u"b a d c"_s});
        row("no spacer without slots",
            {.pinned = u"a b"_s, .slotCount = 0, .separate = true, .ranked = u"c d"_s, .expected = u"a b"_s});
        row("no spacer with nothing ranked",
            {.pinned = u"a b"_s, .slotCount = 5, .separate = true, .expected = u"a b"_s});
        row("no spacer when nothing pinned can be placed",
            {.pinned = u"x y"_s, .slotCount = 5, .separate = true, .ranked = u"a b"_s, .expected = u"a b"_s});
        row("no spacer when nothing is pinned",
            {.slotCount = 5, .separate = true, .ranked = u"a b"_s, .expected = u"a b"_s});
        row("exclusion beats pinning",
            {.pinned = u"a b"_s, .excluded = u"a"_s, .slotCount = 5, .ranked = u"a c"_s, .expected = u"b c"_s});
        row("exclusion beats being in the Dock",
            {.pinned = u"a"_s, .excluded = u"a"_s, .current = u"a b"_s, .expected = u""_s});
        row("a repeated pin is placed once, at its first place", {.pinned = u"a b a"_s, .expected = u"a b"_s});
        row("a ranked app that is pinned uses no slot",
            {.pinned = u"a"_s, .slotCount = 2, .ranked = u"a b c d"_s, .expected = u"a b c"_s});
        row("with the top-ranked excluded, ranks 2 to 4 fill three slots",
            {.excluded = u"a"_s, .slotCount = 3, .ranked = u"a b c d e"_s, .expected = u"b c d"_s});
        row("a repeated rank is placed once", {.slotCount = 3, .ranked = u"a a b a c"_s, .expected = u"a b c"_s});
        row("fewer ranked than slots", {.slotCount = 10, .ranked = u"a b"_s, .expected = u"a b"_s});
        row("a rank that cannot be placed uses no slot",
            {.slotCount = 2, .ranked = u"x a y b c"_s, .expected = u"a b"_s});
        row("a pin that is no longer installed but in the Dock stays",
            {.pinned = u"x a"_s, .current = u"x b"_s, .expected = u"x a"_s});
        row("a rank that is no longer installed but in the Dock stays",
            {.slotCount = 2, .ranked = u"x a"_s, .current = u"b x"_s, .expected = u"x a"_s});
        row("a pin that is nowhere is dropped and the next takes its place",
            {.pinned = u"x a b"_s, .current = u"c"_s, .expected = u"a b"_s});
        row("the ignored are never placed, neither pinned nor ranked nor in the Dock",
            {.pinned = u"com.apple.finder com.apple.dock a"_s,
             .slotCount = 5,
             .ranked = u"com.apple.finder org.kelvane.Kelvane b"_s,
             .current = u"com.apple.finder org.kelvane.Kelvane"_s,
             .expected = u"a b"_s});
        row("spacers and documents of the Dock are left out", {.pinned = u"a"_s,
                                                               .slotCount = 2,
                                                               .separate = true,
                                                               .ranked = u"b"_s,
                                                               .current = u"| a _ b ~ /d c"_s,
                                                               .expected = u"a _ b"_s});
        row("what is neither pinned nor ranked is left out",
            {.pinned = u"a"_s, .slotCount = 1, .ranked = u"b c"_s, .current = u"d e a"_s, .expected = u"a b"_s});
        row("negative slots admit nothing",
            {.pinned = u"a"_s, .slotCount = -1, .separate = true, .ranked = u"b c"_s, .expected = u"a"_s});
        row("the most negative number of slots, too",
            {.slotCount = std::numeric_limits<qint64>::min(), .ranked = u"b c"_s, .expected = u""_s});
        row("the largest number of slots takes all",
            {.slotCount = std::numeric_limits<qint64>::max(), .ranked = u"b c"_s, .expected = u"b c"_s});
        row("identifiers differ by case",
            {.pinned = u"a A"_s, .excluded = u"B"_s, .slotCount = 1, .ranked = u"b"_s, .expected = u"a b"_s});
    }
    void plans() {
        QFETCH(const QString, pinned);
        QFETCH(const QString, excluded);
        QFETCH(const qint64, slots);
        QFETCH(const bool, separate);
        QFETCH(const QString, ranked);
        QFETCH(const QString, current);
        QFETCH(const QString, expected);
        AppCatalog catalog(m_world->bundles, m_world->folders);
        const QList<DockTile> plan = LayoutPlanner::plan(profile(pinned, excluded, slots, separate),
                                                         ranking(words(ranked)), dock(current), catalog);
        QCOMPARE(notation(plan), expected);
    }

    void whatIsNewGetsATileOfItsOwn() {
        AppCatalog catalog(m_world->bundles, m_world->folders);
        const QList<DockTile> plan = LayoutPlanner::plan(profile(u"a"_s, {}, 1, false), ranking({u"b"_s}), {}, catalog);
        QCOMPARE(plan, (QList<DockTile>{DockTile::app({u"a"_s, u"a"_s, u"/Applications/a.app"_s}),
                                        DockTile::app({u"b"_s, u"b"_s, u"/Applications/b.app"_s})}));
    }

    void whatIsInTheDockKeepsItsTile() {
        AppCatalog catalog(m_world->bundles, m_world->folders);
        const QList<DockTile> current = dock(u"x | b a"_s);
        const QList<DockTile> plan =
            LayoutPlanner::plan(profile(u"a x"_s, {}, 1, false), ranking({u"b"_s}), current, catalog);
        QCOMPARE(plan, (QList<DockTile>{current[3], current[0], current[2]}));
        QVERIFY(plan[0].raw == current[3].raw);
        QCOMPARE(plan[1].label, u"tile 0"_s);
        QVERIFY(m_world->bundles.lookups.isEmpty());
    }

    void ofTwoTilesTheFirstIsReused() {
        AppCatalog catalog(m_world->bundles, m_world->folders);
        const QList<DockTile> current = dock(u"b a a b"_s);
        const QList<DockTile> plan =
            LayoutPlanner::plan(profile(u"a"_s, {}, 1, false), ranking({u"b"_s}), current, catalog);
        QCOMPARE(plan, (QList<DockTile>{current[1], current[0]}));
    }

    void theSpacerCarriesItsPlace() {
        AppCatalog catalog(m_world->bundles, m_world->folders);
        const QList<DockTile> plan =
            LayoutPlanner::plan(profile(u"a b c"_s, {}, 1, true), ranking({u"d"_s}), {}, catalog);
        QCOMPARE(plan.size(), 5);
        QCOMPARE(plan[3], DockTile::smallSpacer(3));
        QVERIFY(plan[3].id.endsWith(u":3"));
    }

    void holdsForAnyInput_data() { Seeds::addRows(); }
    void holdsForAnyInput() {
        QFETCH(const quint32, seed);
        QRandomGenerator random(seed);
        QStringList pool = words(u"a b c d e f x y z com.apple.mail com.apple.finder com.apple.dock | _ ~ /d"_s);
        const qsizetype applications = 12;
        const auto pick = [&](qsizetype among) {
            QStringList picked;
            for (int count = random.bounded(12); count > 0; --count)
                picked.append(pool[random.bounded(among)]);
            return picked;
        };
        AppCatalog catalog(m_world->bundles, m_world->folders);
        for (int round = 0; round < 500; ++round) {
            const Profile profile =
                Profile::make(u"Test"_s, u"video"_s, pick(applications), pick(applications).mid(0, 3),
                              random.bounded(-2, 8), UsageWindow::week, random.bounded(2) == 0);
            const QList<AppScore> ranked = ranking(pick(applications));
            const QList<DockTile> current = dock(pick(pool.size()).join(u' '));
            const QList<DockTile> plan = LayoutPlanner::plan(profile, ranked, current, catalog);

            QSet<QString> placed;
            qint64 adaptive = 0;
            qsizetype spacers = 0;
            for (qsizetype i = 0; i < plan.size(); ++i) {
                const DockTile& tile = plan[i];
                if (!tile.bundleID) {
                    QCOMPARE(tile, DockTile::smallSpacer(i));
                    QVERIFY(profile.separatePinned && i > 0 && i + 1 < plan.size());
                    ++spacers;
                    continue;
                }
                QVERIFY(!placed.contains(*tile.bundleID));
                placed.insert(*tile.bundleID);
                QVERIFY(!profile.excluded.contains(*tile.bundleID));
                QVERIFY(!AppCatalog::ignored().contains(*tile.bundleID));
                QVERIFY(catalog.isInstalled(*tile.bundleID) || current.contains(tile));
                adaptive += profile.pinned.contains(*tile.bundleID) ? 0 : 1;
            }
            QVERIFY(adaptive <= std::max(qint64(0), profile.adaptiveSlots));
            QVERIFY(spacers <= 1);
            QCOMPARE(LayoutPlanner::plan(profile, ranked, current, catalog), plan);
            // A plan that is applied is a plan that stays.
            QCOMPARE(layoutSignature(LayoutPlanner::plan(profile, ranked, plan, catalog)), layoutSignature(plan));
        }
    }

private:
    std::unique_ptr<Fakes::World> m_world;
};

QTEST_GUILESS_MAIN(LayoutPlannerTest)
#include "LayoutPlannerTest.moc"
