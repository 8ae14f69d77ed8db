#include "DockCore/DockDiff.h"

#include "Support/DockNotation.h"

#include <QRandomGenerator>
#include <QtTest>

#include <type_traits>

using namespace Qt::StringLiterals;
using DockCore::DockDiff;
using DockNotation::tiles;

static_assert(std::is_copy_constructible_v<DockDiff>);
static_assert(std::is_nothrow_move_constructible_v<DockDiff>);
static_assert(std::equality_comparable<DockDiff>);

class DockDiffTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void compares_data();
    void compares();
    void isEmptyOnlyWithoutAnyChange();
    void equalListsDoNotDiffer_data();
    void equalListsDoNotDiffer();
};

void DockDiffTest::compares_data() {
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<QString>("added");
    QTest::addColumn<QString>("removed");
    QTest::addColumn<QString>("moved");
    const auto row = [](const char* name, const QString& from, const QString& to, const QString& added,
                        const QString& removed,
                        const QString& moved) { QTest::newRow(name) << from << to << added << removed << moved; };
    row("identical lists", u"A B C"_s, u"A B C"_s, u""_s, u""_s, u""_s);
    row("both lists empty", u""_s, u""_s, u""_s, u""_s, u""_s);
    row("only spacers and other items differ", u"A | B /d ?"_s, u"_ A ~ /e B"_s, u""_s, u""_s, u""_s);
    row("two swap", u"A B C"_s, u"A C B"_s, u""_s, u""_s, u"C B"_s);
    row("the last goes first", u"A B C"_s, u"C A B"_s, u""_s, u""_s, u"C A B"_s);
    row("one comes in between", u"A B"_s, u"A X B"_s, u"X"_s, u""_s, u""_s);
    row("the first leaves", u"A B C"_s, u"B C"_s, u""_s, u"A"_s, u""_s);
    row("everything is new", u""_s, u"A B"_s, u"A B"_s, u""_s, u""_s);
    row("everything leaves", u"A B"_s, u""_s, u""_s, u"A B"_s, u""_s);
    row("all three, each in the order of its list", u"A B C D E"_s, u"X D C Y A"_s, u"X Y"_s, u"B E"_s, u"D A"_s);
    row("identifiers differ by case", u"A"_s, u"a"_s, u"a"_s, u"A"_s, u""_s);
    row("one that is new twice", u"A"_s, u"X A X"_s, u"X X"_s, u""_s, u""_s);
    row("one that leaves twice", u"X A X"_s, u"A"_s, u""_s, u"X X"_s, u""_s);
    row("one that is kept twice in the new list", u"A B"_s, u"A A B"_s, u""_s, u""_s, u"A"_s);
    row("one that is kept twice in the old list", u"A A B"_s, u"A B"_s, u""_s, u""_s, u"B"_s);
}

void DockDiffTest::compares() {
    QFETCH(const QString, from);
    QFETCH(const QString, to);
    const DockDiff diff(tiles(from), tiles(to));
    QTEST(diff.added.join(u' '), "added");
    QTEST(diff.removed.join(u' '), "removed");
    QTEST(diff.moved.join(u' '), "moved");
    QCOMPARE(diff.isEmpty(), diff == DockDiff());
}

void DockDiffTest::isEmptyOnlyWithoutAnyChange() {
    QVERIFY(DockDiff().isEmpty());
    DockDiff added;
    added.added = {u"A"_s};
    DockDiff removed;
    removed.removed = {u"A"_s};
    DockDiff moved;
    moved.moved = {u"A"_s};
    QVERIFY(!added.isEmpty() && !removed.isEmpty() && !moved.isEmpty());
}

void DockDiffTest::equalListsDoNotDiffer_data() {
    QTest::addColumn<quint32>("seed");
    QTest::newRow("with a fixed seed") << quint32(20260311);
    QTest::newRow("with a random seed") << QRandomGenerator::global()->generate();
}

void DockDiffTest::equalListsDoNotDiffer() {
    QFETCH(const quint32, seed);
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    const QStringList words = {u"A"_s, u"B"_s, u"C"_s, u"D"_s, u"|"_s, u"_"_s, u"~"_s, u"/d"_s, u"?"_s};
    const auto any = [&random, &words] {
        QStringList list;
        for (int count = random.bounded(12); count > 0; --count)
            list.append(words[random.bounded(words.size())]);
        return list;
    };
    for (int round = 0; round < 500; ++round) {
        const QStringList from = any();
        const QStringList to = any();
        const auto fromTiles = tiles(from.join(u' '));
        const auto toTiles = tiles(to.join(u' '));
        QVERIFY2(DockDiff(fromTiles, fromTiles).isEmpty(), qPrintable(from.join(u' ')));
        // What one way adds, the other way removes.
        QCOMPARE(DockDiff(fromTiles, toTiles).added, DockDiff(toTiles, fromTiles).removed);
        for (const QString& moved : DockDiff(fromTiles, toTiles).moved)
            QVERIFY(from.contains(moved) && to.contains(moved));
    }
}

QTEST_GUILESS_MAIN(DockDiffTest)

#include "DockDiffTest.moc"
