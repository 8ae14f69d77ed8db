#include "DockCore/Storage/JSONForm.h"

#include "Support/TimeZone.h"

#include <QJsonDocument>
#include <QTest>

#include <limits>

using namespace DockCore;
using namespace Qt::StringLiterals;

class JSONFormTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void writesDatesInUniversalTime_data() {
        QTest::addColumn<QDateTime>("date");
        QTest::addColumn<QString>("text");
        QTest::newRow("a fraction of a second is dropped")
            << QDateTime(QDate(2025, 3, 7), QTime(14, 5, 9, 750), Qt::UTC) << u"2025-03-07T14:05:09Z"_s;
        QTest::newRow("an offset is brought to UTC")
            << QDateTime(QDate(2025, 3, 7), QTime(1, 5, 9), Qt::OffsetFromUTC, 5400) << u"2025-03-06T23:35:09Z"_s;
        QTest::newRow("local time is brought to UTC")
            << QDateTime(QDate(2025, 3, 7), QTime(1, 5, 9)) << u"2025-03-06T19:35:09Z"_s;
        QTest::newRow("a fraction before 1970 is dropped")
            << QDateTime(QDate(1969, 12, 31), QTime(23, 59, 59, 999), Qt::UTC) << u"1969-12-31T23:59:59Z"_s;
    }
    void writesDatesInUniversalTime() {
        const Fakes::TimeZone zone("Asia/Kolkata");
        QFETCH(const QDateTime, date);
        QFETCH(const QString, text);
        QCOMPARE(JSONForm<QDateTime>::write(date).toString(), text);
        QCOMPARE(JSONForm<QDateTime>::read(text)->toSecsSinceEpoch(),
                 date.addMSecs(-date.time().msec()).toSecsSinceEpoch());
    }

    void datesBeyondFourDigitsAreWrittenAsTheNearestOnes_data() {
        QTest::addColumn<QDateTime>("date");
        QTest::addColumn<QString>("text");
        QTest::newRow("the last second stays")
            << QDateTime(QDate(9999, 12, 31), QTime(23, 59, 59, 999), Qt::UTC) << u"9999-12-31T23:59:59Z"_s;
        QTest::newRow("the year 10000") << QDateTime(QDate(10000, 1, 1), QTime(0, 0), Qt::UTC)
                                        << u"9999-12-31T23:59:59Z"_s;
        QTest::newRow("the year 292277026")
            << QDateTime(QDate(292277026, 1, 1), QTime(0, 0), Qt::UTC) << u"9999-12-31T23:59:59Z"_s;
        QTest::newRow("only in UTC past 9999")
            << QDateTime(QDate(9999, 12, 31), QTime(23, 0), Qt::OffsetFromUTC, -7200) << u"9999-12-31T23:59:59Z"_s;
        QTest::newRow("before the year 1")
            << QDateTime(QDate(-1, 12, 31), QTime(12, 0), Qt::UTC) << u"0001-01-01T00:00:00Z"_s;
    }
    void datesBeyondFourDigitsAreWrittenAsTheNearestOnes() {
        QFETCH(const QDateTime, date);
        QFETCH(const QString, text);
        const QJsonValue json = JSONForm<QDateTime>::write(date);
        QCOMPARE(json.toString(), text);
        QVERIFY(JSONForm<QDateTime>::read(json));
    }

    void readsDates_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char* name, const char16_t* text, const char16_t* expected) {
            QTest::newRow(name) << QString::fromUtf16(text) << (expected ? QString::fromUtf16(expected) : QString());
        };
        row("UTC", u"2025-03-07T14:05:09Z", u"2025-03-07T14:05:09Z");
        row("an offset to the east", u"2025-03-07T14:05:09+05:30", u"2025-03-07T08:35:09Z");
        row("an offset to the west over midnight", u"2025-12-31T23:05:09-02:00", u"2026-01-01T01:05:09Z");
        row("a leap day", u"2024-02-29T00:00:00Z", u"2024-02-29T00:00:00Z");
        row("a fraction is refused", u"2025-03-07T14:05:09.750Z", nullptr);
        row("no zone is refused", u"2025-03-07T14:05:09", nullptr);
        row("a date alone is refused", u"2025-03-07", nullptr);
        row("an impossible day is refused", u"2025-02-30T00:00:00Z", nullptr);
        row("a leap day in a common year is refused", u"2025-02-29T00:00:00Z", nullptr);
        row("month 13 is refused", u"2025-13-01T00:00:00Z", nullptr);
        row("hour 24 is refused", u"2025-03-07T24:00:00Z", nullptr);
        row("second 60 is refused", u"2025-03-07T23:59:60Z", nullptr);
        row("a space for the T is refused", u"2025-03-07 14:05:09Z", nullptr);
        row("a lower-case z is refused", u"2025-03-07T14:05:09z", nullptr);
        row("text after the zone is refused", u"2025-03-07T14:05:09Z ", nullptr);
        row("two zones are refused", u"2025-03-07T14:05:09Z+01:00", nullptr);
        row("an offset of 24 hours is refused", u"2025-03-07T14:05:09+24:00", nullptr);
        row("an offset without a colon is refused", u"2025-03-07T14:05:09+0100", nullptr);
        row("signs for digits are refused", u"2025-03-07T+4:05:09Z", nullptr);
        row("digits of another script are refused", u"٢٠٢٥-03-07T14:05:09Z", nullptr);
        row("empty text is refused", u"", nullptr);
    }
    void readsDates() {
        QFETCH(const QString, text);
        QFETCH(const QString, expected);
        const auto date = JSONForm<QDateTime>::read(text);
        QCOMPARE(date ? JSONForm<QDateTime>::write(*date).toString() : QString(), expected);
    }

    void readsIntegers_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("reads");
        QTest::addColumn<qint64>("expected");
        QTest::newRow("0") << QByteArray("0") << true << qint64(0);
        QTest::newRow("1") << QByteArray("1") << true << qint64(1);
        QTest::newRow("-1") << QByteArray("-1") << true << qint64(-1);
        QTest::newRow("7.0 is 7") << QByteArray("7.0") << true << qint64(7);
        QTest::newRow("the largest") << QByteArray("9223372036854775807") << true << std::numeric_limits<qint64>::max();
        QTest::newRow("the smallest") << QByteArray("-9223372036854775808") << true
                                      << std::numeric_limits<qint64>::min();
        QTest::newRow("one above the largest is refused") << QByteArray("9223372036854775808") << false << qint64(0);
        QTest::newRow("1.5 is refused") << QByteArray("1.5") << false << qint64(0);
        QTest::newRow("1e300 is refused") << QByteArray("1e300") << false << qint64(0);
        QTest::newRow("true is refused") << QByteArray("true") << false << qint64(0);
        QTest::newRow("text is refused") << QByteArray("\"7\"") << false << qint64(0);
        QTest::newRow("null is refused") << QByteArray("null") << false << qint64(0);
    }
    void readsIntegers() {
        QFETCH(const QByteArray, text);
        QFETCH(const bool, reads);
        QFETCH(const qint64, expected);
        const auto integer = JSONForm<qint64>::read(QJsonDocument::fromJson("[" + text + "]").array()[0]);
        QCOMPARE(integer.has_value(), reads);
        QCOMPARE(integer.value_or(0), expected);
    }

    void convertsNothing() {
        QVERIFY(!JSONForm<bool>::read(1));
        QVERIFY(!JSONForm<bool>::read(u"true"_s));
        QCOMPARE(JSONForm<bool>::read(false), false);
        QVERIFY(!JSONForm<double>::read(u"1.5"_s));
        QVERIFY(!JSONForm<double>::read(true));
        QCOMPARE(JSONForm<double>::read(1.5), 1.5);
        QVERIFY(!JSONForm<QString>::read(7));
        QCOMPARE(JSONForm<QString>::read(u""_s), u""_s);
        QVERIFY(!JSONForm<QStringList>::read(QJsonArray{u"a"_s, 1}));
        QVERIFY(!JSONForm<QStringList>::read(u"a"_s));
        QCOMPARE(JSONForm<QStringList>::read(QJsonArray()), QStringList());
        QVERIFY(!JSONForm<QDateTime>::read(7));
    }

    void readsMapsOfOneType() {
        using Map = QHash<QString, qint64>;
        QCOMPARE(JSONForm<Map>::read(QJsonObject{{u"a"_s, 1}, {u"b"_s, 2}}), (Map{{u"a"_s, 1}, {u"b"_s, 2}}));
        QCOMPARE(JSONForm<Map>::read(QJsonObject()), Map());
        QVERIFY(!JSONForm<Map>::read(QJsonObject{{u"a"_s, 1}, {u"b"_s, 2.5}}));
        QVERIFY(!JSONForm<Map>::read(QJsonObject{{u"a"_s, QJsonValue::Null}}));
        QVERIFY(!JSONForm<Map>::read(QJsonArray()));
    }
};

QTEST_GUILESS_MAIN(JSONFormTest)
#include "JSONFormTest.moc"
