#include "Kelvane/ViewModels/RowListOf.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/// "a1": the letter is the row's identity, the rest its content.
struct Row {
    Q_GADGET
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(int number READ number)
    Q_PROPERTY(QStringList letters READ letters)

public:
    QString text;

    bool operator==(const Row&) const = default;
    QString key() const { return text.left(1); }
    int number() const { return text.mid(1).toInt(); }
    QStringList letters() const { return text.split(QString(), Qt::SkipEmptyParts); }
};

class RowListOfTest : public QObject {
    Q_OBJECT

    static void set(Kelvane::RowListOf<Row>& model, const QString& notation) {
        QList<Row> rows;
        for (const QString& text : notation.split(u' ', Qt::SkipEmptyParts))
            rows.append({text});
        model.setRows(rows);
    }
    static QString notation(const Kelvane::RowListOf<Row>& model) {
        QStringList texts;
        for (const Row& row : model.rows())
            texts += row.text;
        return texts.join(u' ');
    }

private Q_SLOTS:
    void rolesAreTheProperties() {
        Kelvane::RowListOf<Row> model;
        set(model, u"a1 b2"_s);
        const QHash<int, QByteArray> names = model.roleNames();
        QCOMPARE(names.size(), 3);
        const auto value = [&](const QByteArray& role, int row = 1) { return model.index(row).data(names.key(role)); };
        QCOMPARE(value("text"), QVariant(u"b2"_s));
        QCOMPARE(value("number"), QVariant(2));
        QCOMPARE(value("letters"), QVariant(QStringList{u"b"_s, u"2"_s}));
        QVERIFY(!value("text", 2).isValid());
        QVERIFY(!model.index(0).data(Qt::DisplayRole).isValid());
        QVERIFY(!model.index(0).data(Qt::UserRole + 1 + 3).isValid());
    }

    void countFollowsTheRows() {
        Kelvane::RowListOf<Row> model;
        QSignalSpy changed(&model, &Kelvane::RowListModel::countChanged);
        set(model, u"a1 b1"_s);
        QCOMPARE(model.count(), 2);
        QVERIFY(changed.count() > 0);
        changed.clear();
        set(model, u"b1 a2"_s);
        QCOMPARE(changed.count(), 0);
        set(model, {});
        QCOMPARE(model.count(), 0);
        QCOMPARE(changed.count(), 1);
    }

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
        Kelvane::RowListOf<Row> model;
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        set(model, before);
        QStringList heard;
        connect(&model, &Kelvane::RowListModel::rowsInserted, this, [&heard] { heard += u"insert"_s; });
        connect(&model, &Kelvane::RowListModel::rowsRemoved, this, [&heard] { heard += u"remove"_s; });
        connect(&model, &Kelvane::RowListModel::rowsMoved, this, [&heard] { heard += u"move"_s; });
        connect(&model, &Kelvane::RowListModel::dataChanged, this, [&heard] { heard += u"change"_s; });
        connect(&model, &Kelvane::RowListModel::modelReset, this, [&heard] { heard += u"reset"_s; });
        set(model, after);
        QCOMPARE(notation(model), after);
        QTEST(heard.join(u' '), "signals_");
    }
};

QTEST_GUILESS_MAIN(RowListOfTest)
#include "RowListOfTest.moc"
