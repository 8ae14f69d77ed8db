#include "DockCore/Storage/JSONText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <cmath>
#include <limits>

using namespace DockCore;
using namespace Qt::StringLiterals;

class JSONTextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void writesAsItGoes() {
        JSONText text;
        text.beginObject();
        text.key(u"a");
        text.beginArray();
        text.value(true);
        text.value(qint64(-7));
        text.value(0.5);
        text.value(u"x"_s);
        text.endArray();
        text.key(u"b");
        text.beginObject();
        text.endObject();
        text.key(u"c");
        text.value(QJsonValue(QJsonValue::Null));
        text.endObject();
        QCOMPARE(text.bytes(), "{\n    \"a\": [\n        true,\n        -7,\n        0.5,\n        \"x\"\n    ],\n"
                               "    \"b\": {},\n    \"c\": null\n}\n");
        QVERIFY(text.isValid());
    }

    void sortsWhatComesAsAWhole() {
        JSONText text;
        text.value(QJsonValue(QJsonObject{{u"b"_s, 1}, {u"a"_s, QJsonArray()}, {u"B"_s, false}}));
        QCOMPARE(text.bytes(), "{\n    \"B\": false,\n    \"a\": [],\n    \"b\": 1\n}\n");
    }

    void strings_data() {
        QTest::addColumn<QString>("string");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("plain text") << u"com.apple.mail"_s << QByteArray("\"com.apple.mail\"");
        QTest::newRow("nothing") << QString() << QByteArray("\"\"");
        QTest::newRow("quotes and backslashes are escaped") << u"a\"b\\c"_s << QByteArray("\"a\\\"b\\\\c\"");
        QTest::newRow("control characters are escaped")
            << u"a\nb\u0001\u001f"_s << QByteArray("\"a\\u000ab\\u0001\\u001f\"");
        QTest::newRow("other scripts stay") << u"Übung 日本"_s << QByteArray("\"Übung 日本\"");
        QTest::newRow("beyond the basic plane stays") << u"\U0001F600"_s << QByteArray("\"\U0001F600\"");
        QTest::newRow("half a pair is escaped") << QString(QChar(0xd83d)) + u'x' << QByteArray("\"\\ud83dx\"");
        QTest::newRow("the other half is escaped") << QString(QChar(0xde00)) << QByteArray("\"\\ude00\"");
    }
    void strings() {
        QFETCH(const QString, string);
        QFETCH(const QByteArray, expected);
        JSONText text;
        text.beginArray();
        text.value(string);
        text.endArray();
        QCOMPARE(text.bytes(), "[\n    " + expected + "\n]\n");
        QCOMPARE(QJsonDocument::fromJson(text.bytes()).array()[0].toString(), string);
    }

    void numbers_data() {
        QTest::addColumn<double>("number");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("a whole one has no point") << 36000.0 << QByteArray("36000");
        QTest::newRow("a hundred million keeps its digits") << 1e8 << QByteArray("100000000");
        QTest::newRow("the shortest digits that read back") << 0.1 << QByteArray("0.1");
        QTest::newRow("as many digits as it takes") << 0.1 + 0.2 << QByteArray("0.30000000000000004");
        QTest::newRow("a large one has an exponent") << 1e300 << QByteArray("1e+300");
        QTest::newRow("a negative one") << -90.25 << QByteArray("-90.25");
    }
    void numbers() {
        QFETCH(const double, number);
        QFETCH(const QByteArray, expected);
        JSONText text;
        text.beginArray();
        text.value(number);
        text.endArray();
        QCOMPARE(text.bytes(), "[\n    " + expected + "\n]\n");
        QVERIFY(text.isValid());
    }

    void whatIsNoNumberMakesItInvalid() {
        for (const double number :
             {std::nan(""), std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()}) {
            JSONText direct;
            direct.value(number);
            QVERIFY(!direct.isValid());
            JSONText inside;
            inside.value(QJsonValue(QJsonArray{QJsonArray{1, number}, 2}));
            QVERIFY(!inside.isValid());
        }
    }
};

QTEST_GUILESS_MAIN(JSONTextTest)
#include "JSONTextTest.moc"
