#include "Kelvane/ViewModels/RowListModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// "a1": the letter is the row's identity, the rest its content.
struct Row {
    QString text;
    bool operator==(const Row&) const = default;
    QString key() const { return text.left(1); }
};

class Model : public Kelvane::RowListModel<Row> {
public:
    void set(const QString& notation) {
        QList<Row> rows;
        for (const QString& text : notation.split(u' ', Qt::SkipEmptyParts))
            rows.append({text});
        setRows(rows);
    }
    QString notation() const {
        QStringList texts;
        for (const Row& row : rows())
            texts += row.text;
        return texts.join(u' ');
    }

protected:
    QVariant value(const Row& row, int role) const override { return role == Qt::DisplayRole ? row.text : QVariant(); }
};

} // namespace

class RowListModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void setRows_data() {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::addColumn<QString>("signals_");
        QTest::newRow("from nothing") << u""_s << u"a1 b1"_s << u"insert insert"_s;
        QTest::newRow("to nothing") << u"a1 b1 c1"_s << u""_s << u"remove"_s;
        QTest::newRow("the same rows say nothing") << u"a1 b1"_s << u"a1 b1"_s << u""_s;
        QTest::newRow("changed content keeps its row") << u"a1 b1"_s << u"a1 b2"_s << u"change"_s;
        QTest::newRow("a row moved up moves once") << u"a1 b1 c1"_s << u"c1 a1 b1"_s << u"move"_s;
        QTest::newRow("a row in the middle goes alone") << u"a1 b1 c1"_s << u"a1 c1"_s << u"remove"_s;
        QTest::newRow("two places go apart") << u"a1 b1 c1 d1"_s << u"b1 d1"_s << u"remove remove"_s;
        QTest::newRow("a row comes between two") << u"a1 c1"_s << u"a1 b1 c1"_s << u"insert"_s;
        QTest::newRow("one of two equal rows goes") << u"a1 a1 b1"_s << u"a1 b1"_s << u"remove"_s;
        QTest::newRow("everything at once")
            << u"a1 b1 c1 d1"_s << u"e1 c2 a1"_s << u"remove remove insert move change"_s;
    }
    void setRows() {
        QFETCH(QString, before);
        QFETCH(QString, after);
        Model model;
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.set(before);
        QStringList heard;
        connect(&model, &Model::rowsInserted, this, [&heard] { heard += u"insert"_s; });
        connect(&model, &Model::rowsRemoved, this, [&heard] { heard += u"remove"_s; });
        connect(&model, &Model::rowsMoved, this, [&heard] { heard += u"move"_s; });
        connect(&model, &Model::dataChanged, this, [&heard] { heard += u"change"_s; });
        connect(&model, &Model::modelReset, this, [&heard] { heard += u"reset"_s; });
        model.set(after);
        QCOMPARE(model.notation(), after);
        QTEST(heard.join(u' '), "signals_");
    }
};

QTEST_GUILESS_MAIN(RowListModelTest)
#include "RowListModelTest.moc"
