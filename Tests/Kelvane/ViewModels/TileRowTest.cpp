#include "Kelvane/ViewModels/TileRow.h"

#include "Kelvane/ViewModels/RowListOf.h"
#include "Support/DockNotation.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace DockCore;
using namespace Kelvane;
using namespace Qt::StringLiterals;

namespace {

/// A tile and its mark: "a" stays, "+a" arrives, "-a" leaves, "<a" and ">a" move forward and back, "*a" wears a pin,
/// and "_" is a spacer.
QString notation(const QList<TileRow>& rows) {
    QStringList words;
    for (const TileRow& row : rows) {
        QString word = row.isPinned ? u"*"_s : QString();
        switch (row.mark) {
        case TileRow::Mark::none:
            break;
        case TileRow::Mark::arriving:
            word += u'+';
            break;
        case TileRow::Mark::leaving:
            word += u'-';
            break;
        case TileRow::Mark::movedForward:
            word += u'<';
            break;
        case TileRow::Mark::movedBack:
            word += u'>';
            break;
        }
        words.append(word + (row.isSpacer ? u"_"_s : row.id.section(u':', 1)));
    }
    return words.join(u' ');
}

} // namespace

class TileRowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void marks_data() {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::addColumn<QString>("now");
        QTest::addColumn<QString>("suggested");

        QTest::newRow("nothing changes, nothing is marked") << u"a b"_s << u"a b"_s << u"a b"_s << u"a b"_s;
        QTest::newRow("what is only suggested arrives") << u"a"_s << u"a b"_s << u"a"_s << u"a +b"_s;
        QTest::newRow("what is not suggested leaves, on the Dock as it is")
            << u"a b"_s << u"b"_s << u"-a b"_s << u"b"_s;
        QTest::newRow("a swap moves one forward and one back") << u"a b"_s << u"b a"_s << u"a b"_s << u"<b >a"_s;
        QTest::newRow("what only makes room for an arrival has not moved")
            << u"a b"_s << u"c a b"_s << u"a b"_s << u"+c a b"_s;
        QTest::newRow("what only closes a gap has not moved") << u"a b c"_s << u"b c"_s << u"-a b c"_s << u"b c"_s;
        QTest::newRow("spacers stay out of the Dock as it is")
            << u"a | b _ c"_s << u"a _ b c"_s << u"a b c"_s << u"a _ b c"_s;
        QTest::newRow("an empty Dock gets everything") << QString() << u"a b"_s << QString() << u"+a +b"_s;
    }
    void marks() {
        QFETCH(QString, before);
        QFETCH(QString, after);
        const QList<DockTile> current = DockNotation::tiles(before);
        const QList<DockTile> proposal = DockNotation::tiles(after);
        const DockDiff diff(current, proposal);
        QTEST(notation(TileRow::current(current, diff)), "now");
        QTEST(notation(TileRow::proposed(proposal, current, diff, {})), "suggested");
    }

    void alwaysThereAppsWearAPin() {
        QCOMPARE(notation(TileRow::plain(DockNotation::tiles(u"a _ b"_s), {u"b"_s, u"z"_s})), u"a _ *b"_s);
    }

    void accessibleNames_data() {
        QTest::addColumn<int>("mark");
        QTest::addColumn<bool>("pinned");
        QTest::addColumn<QString>("name");
        const auto row = [](const char* title, TileRow::Mark mark, bool pinned, const QString& name) {
            QTest::newRow(title) << static_cast<int>(mark) << pinned << name;
        };
        row("a tile that stays is called by its name", TileRow::Mark::none, false, u"Terminal"_s);
        row("an arriving one is added", TileRow::Mark::arriving, false, u"Terminal, added"_s);
        row("a leaving one leaves", TileRow::Mark::leaving, false, u"Terminal, leaving"_s);
        row("forward", TileRow::Mark::movedForward, false, u"Terminal, moved forward"_s);
        row("back, and pinned", TileRow::Mark::movedBack, true, u"Terminal, moved back, always in the Dock"_s);
    }
    void accessibleNames() {
        QFETCH(int, mark);
        QFETCH(bool, pinned);
        TileRow row;
        row.name = u"Terminal"_s;
        row.mark = static_cast<TileRow::Mark>(mark);
        row.isPinned = pinned;
        QTEST(row.accessibleName(), "name");
    }

    void rowsThatStayAreMovedNotMadeAnew() {
        RowListOf<TileRow> model;
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.setRows(TileRow::plain(DockNotation::tiles(u"a b c"_s), {}));
        QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
        QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
        QSignalSpy moved(&model, &QAbstractItemModel::rowsMoved);
        model.setRows(TileRow::plain(DockNotation::tiles(u"c a d"_s), {}));
        QCOMPARE(notation(model.rows()), u"c a d"_s);
        QCOMPARE(removed.count(), 1);
        QCOMPARE(moved.count(), 1);
        QCOMPARE(inserted.count(), 1);
    }

    void sixtyTilesComeAndGoWhole() {
        RowListOf<TileRow> model;
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QStringList words;
        for (int i = 0; i < 60; ++i)
            words.append(u"app"_s + QString::number(i));
        model.setRows(TileRow::plain(DockNotation::tiles(words.join(u' ')), {}));
        std::reverse(words.begin(), words.end());
        model.setRows(TileRow::plain(DockNotation::tiles(words.join(u' ')), {}));
        QCOMPARE(notation(model.rows()), words.join(u' '));
        model.setRows({});
        QCOMPARE(model.count(), 0);
    }
};

QTEST_GUILESS_MAIN(TileRowTest)
#include "TileRowTest.moc"
