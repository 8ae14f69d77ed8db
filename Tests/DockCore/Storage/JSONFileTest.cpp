#include "DockCore/Storage/JSONFile.h"

#include "DockCore/Error.h"
#include "Support/ChildProcess.h"
#include "Support/Files.h"
#include "Support/Seeds.h"
#include "Support/TimeZone.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <cstring>
#include <filesystem>
#include <limits>

using namespace DockCore;
using namespace Qt::StringLiterals;

namespace {
void put(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

std::optional<QString> failure(const QJsonValue& value, const QString& path) {
    try {
        JSONFile::save(value, path);
    } catch (const FileError& error) {
        return error.description();
    }
    return std::nullopt;
}

const QByteArray bom("\xEF\xBB\xBF");
} // namespace

class JSONFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void writesSortedAndIndented() {
        const QJsonObject object = {
            {u"b"_s, 1}, {u"a"_s, QJsonArray{u"x"_s}}, {u"C"_s, QJsonObject{{u"z"_s, true}, {u"y"_s, 0.5}}}};
        JSONFile::save(object, path());
        QCOMPARE(Files::contentOf(path()),
                 "{\n    \"C\": {\n        \"y\": 0.5,\n        \"z\": true\n    },\n    \"a\": [\n"
                 "        \"x\"\n    ],\n    \"b\": 1\n}\n");
    }

    void savingTheSameValueTwiceGivesTheSameBytes() {
        QJsonObject forward;
        QJsonObject backward;
        for (int i = 0; i < 100; ++i) {
            forward.insert(u"com.vendor.%1"_s.arg(i), i);
            backward.insert(u"com.vendor.%1"_s.arg(99 - i), 99 - i);
        }
        JSONFile::save(forward, path());
        const QByteArray first = Files::contentOf(path());
        JSONFile::save(backward, path());
        QVERIFY(!first.isEmpty());
        QCOMPARE(Files::contentOf(path()), first);
    }

    void aFileThatHoldsTheValueIsLeftAlone() {
        JSONFile::save(QJsonArray{1}, path());
        const auto replaced = [this](const QJsonValue& value) {
            // A second name keeps the file that a new one takes the place of.
            const QString kept = m_folder->filePath(u"kept.json"_s);
            QFile::remove(kept);
            std::filesystem::create_hard_link(path().toStdString(), kept.toStdString());
            JSONFile::save(value, path());
            return !std::filesystem::equivalent(path().toStdString(), kept.toStdString());
        };
        QVERIFY(!replaced(QJsonArray{1}));
        QVERIFY(replaced(QJsonArray{2}));
        QCOMPARE(Files::contentOf(path()), "[\n    2\n]\n");
        // As long, but not the same.
        QVERIFY(replaced(QJsonArray{3}));
        QVERIFY(!replaced(QJsonArray{3}));
        QVERIFY(QFile::remove(path()));
        JSONFile::save(QJsonArray{3}, path());
        QCOMPARE(Files::contentOf(path()), "[\n    3\n]\n");
    }

    void isReadableByTheUserAlone_data() {
        QTest::addColumn<QByteArray>("before");
        QTest::newRow("a file that held something else") << QByteArray("[]");
        QTest::newRow("a file that held the same") << QByteArray("[\n    1\n]\n");
    }
    void isReadableByTheUserAlone() {
        QFETCH(const QByteArray, before);
        put(path(), before);
        QVERIFY(
            QFile::setPermissions(path(), QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadOther));
        JSONFile::save(QJsonArray{1}, path());
        const auto everybodyElse = QFileDevice::ReadGroup | QFileDevice::WriteGroup | QFileDevice::ExeGroup |
                                   QFileDevice::ReadOther | QFileDevice::WriteOther | QFileDevice::ExeOther;
        QVERIFY(!(QFile::permissions(path()) & everybodyElse));
        QVERIFY(QFile::permissions(path()) & QFileDevice::WriteOwner);
    }

    void readsBackWhatItWrote_data() {
        QTest::addColumn<QJsonValue>("value");
        QTest::newRow("the largest 64-bit integer") << QJsonValue(std::numeric_limits<qint64>::max());
        QTest::newRow("the smallest 64-bit integer") << QJsonValue(std::numeric_limits<qint64>::min());
        QTest::newRow("an integer beyond what a double holds") << QJsonValue((qint64(1) << 53) + 1);
        QTest::newRow("a third") << QJsonValue(1.0 / 3);
        QTest::newRow("a tenth thrice") << QJsonValue(0.1 + 0.1 + 0.1);
        QTest::newRow("the smallest double") << QJsonValue(std::numeric_limits<double>::denorm_min());
        QTest::newRow("the largest double") << QJsonValue(std::numeric_limits<double>::max());
        QTest::newRow("text beyond the basic plane") << QJsonValue(u"Ä \U0001F600 \"\\ \u0001 \u2028"_s);
        QTest::newRow("an empty object") << QJsonValue(QJsonObject());
        QTest::newRow("nothing but an empty key") << QJsonValue(QJsonObject{{QString(), u""_s}});
    }
    void readsBackWhatItWrote() {
        QFETCH(const QJsonValue, value);
        JSONFile::save(QJsonArray{value}, path());
        const auto read = JSONFile::read(path());
        QVERIFY(read);
        QCOMPARE(*read, QJsonValue(QJsonArray{value}));
        QCOMPARE(read->toArray()[0].toDouble(), value.toDouble());
        QCOMPARE(read->toArray()[0].toInteger(), value.toInteger());
    }

    void everyDoubleReadsBackEqual_data() { Seeds::addRows(); }
    void everyDoubleReadsBackEqual() {
        QFETCH(const quint32, seed);
        QRandomGenerator random(seed);
        QList<double> numbers;
        QJsonArray array;
        while (numbers.size() < 2000) {
            const quint64 bits = random.generate64();
            double number = 0;
            std::memcpy(&number, &bits, sizeof(number));
            if (!std::isfinite(number))
                continue;
            numbers.append(number);
            array.append(number);
        }
        JSONFile::save(array, path());
        const QJsonArray read = JSONFile::read(path()).value_or(QJsonValue()).toArray();
        QCOMPARE(read.size(), numbers.size());
        for (qsizetype i = 0; i < numbers.size(); ++i)
            QVERIFY(read[i].toDouble() == numbers[i]);
    }

    void refusesToWrite_data() {
        QTest::addColumn<QJsonValue>("value");
        QTest::newRow("infinity in an array") << QJsonValue(QJsonArray{std::numeric_limits<double>::infinity()});
        QTest::newRow("no number deep inside")
            << QJsonValue(QJsonObject{{u"a"_s, QJsonObject{{u"b"_s, QJsonArray{1, std::nan("")}}}}});
    }
    void refusesToWrite() {
        QFETCH(const QJsonValue, value);
        put(path(), "[\"before\"]");
        QCOMPARE(failure(value, path()), u"“file.json” could not be saved: a number in it cannot be written."_s);
        QCOMPARE(Files::contentOf(path()), "[\"before\"]");
    }

    void saysWhyItCouldNotSave() {
        const auto missing = failure(QJsonArray(), m_folder->filePath(u"missing/usage.json"_s));
        QVERIFY(missing);
        QCOMPARE(*missing, u"“usage.json” could not be saved: No such file or directory."_s);
        QVERIFY(QDir(m_folder->path()).mkdir(u"settings.json"_s));
        const auto folder = failure(QJsonArray(), m_folder->filePath(u"settings.json"_s));
        QVERIFY(folder);
        QVERIFY2(folder->startsWith(u"“settings.json” could not be saved: "), qPrintable(*folder));
        QVERIFY2(folder->endsWith(u'.') && !folder->endsWith(u".."), qPrintable(*folder));
    }

    void aFullDiskLeavesTheOldFile_data() {
        QTest::addColumn<int>("size");
        QTest::newRow("small enough for a buffer") << 3000;
        QTest::newRow("larger than a buffer") << 100000;
    }
    void aFullDiskLeavesTheOldFile() {
        QFETCH(const int, size);
        if (!ChildProcess::isChild()) {
            // A limit on the size of files stands in for the full disk.
            const auto outcome =
                ChildProcess::run({u"/bin/sh"_s, u"-c"_s, u"trap '' XFSZ; ulimit -f 1; exec \"$@\""_s, u"sh"_s});
            QVERIFY2(!outcome.crashed && outcome.status == 0, qPrintable(outcome.output));
            QVERIFY2(outcome.output.contains(u"PASS   : JSONFileTest::aFullDisk"), qPrintable(outcome.output));
            return;
        }
        put(path(), "[\"before\"]");
        const auto sentence = failure(QJsonArray{QString(size, u'x')}, path());
        QVERIFY(sentence);
        QVERIFY2(sentence->startsWith(u"“file.json” could not be saved: "), qPrintable(*sentence));
        QCOMPARE(Files::contentOf(path()), "[\"before\"]");
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden), QStringList{u"file.json"_s});
    }

    void readsOnlyWholeJson_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("reads");
        QTest::newRow("an empty object reads") << QByteArray("{}") << true;
        QTest::newRow("an array reads") << QByteArray(" [1]\n") << true;
        QTest::newRow("a byte order mark is skipped") << bom + "[1]" << true;
        QTest::newRow("an empty file is nothing") << QByteArray() << false;
        QTest::newRow("broken JSON is nothing") << QByteArray("{\"a\": ") << false;
        QTest::newRow("a truncated string is nothing") << QByteArray("[\"a") << false;
        QTest::newRow("a bare number is nothing") << QByteArray("7") << false;
        QTest::newRow("text after the value is nothing") << QByteArray("{} {}") << false;
        QTest::newRow("invalid UTF-8 is nothing") << QByteArray("[\"\xff\xfe\"]") << false;
        QTest::newRow("a NUL byte is nothing") << QByteArray("[1]\0", 4) << false;
        QTest::newRow("ten thousand levels are nothing") << QByteArray(10000, '[') + QByteArray(10000, ']') << false;
        QTest::newRow("ten thousand open levels are nothing") << QByteArray("{\"a\":").repeated(10000) << false;
        QTest::newRow("a number beyond all doubles is nothing") << "[" + QByteArray(1000, '9') + "]" << false;
        QTest::newRow("a property list is nothing") << QByteArray("bplist00\xd0") << false;
    }
    void readsOnlyWholeJson() {
        QFETCH(const QByteArray, bytes);
        QFETCH(const bool, reads);
        put(path(), bytes);
        QCOMPARE(JSONFile::read(path()).has_value(), reads);
    }

    void ofADuplicateKeyTheLastCounts() {
        put(path(), R"({"a": 1, "a": 2})");
        QCOMPARE(JSONFile::read(path()).value_or(QJsonValue()), QJsonValue(QJsonObject{{u"a"_s, 2}}));
    }

    void whatIsNoFileReadsAsNothing() {
        QVERIFY(!JSONFile::read(m_folder->filePath(u"missing.json"_s)));
        QVERIFY(!JSONFile::read(m_folder->path()));
        QVERIFY(!JSONFile::read(u"/dev/zero"_s));
        QVERIFY(!JSONFile::read(QString()));
    }

    void aFileOverTheLimitReadsAsNothing() {
        put(path(), "[1]");
        QVERIFY(QFile::resize(path(), 64 * 1024 * 1024 + 1));
        QVERIFY(!JSONFile::read(path()));
    }

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
        QCOMPARE(JSONFile::dateString(date), text);
        QCOMPARE(JSONFile::date(text)->toSecsSinceEpoch(), date.addMSecs(-date.time().msec()).toSecsSinceEpoch());
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
        const auto date = JSONFile::date(text);
        QCOMPARE(date ? JSONFile::dateString(*date) : QString(), expected);
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
        const auto integer = JSONFile::integer(QJsonDocument::fromJson("[" + text + "]").array()[0]);
        QCOMPARE(integer.has_value(), reads);
        QCOMPARE(integer.value_or(0), expected);
    }

    void convertsNothing() {
        QVERIFY(!JSONFile::boolean(1));
        QVERIFY(!JSONFile::boolean(u"true"_s));
        QCOMPARE(JSONFile::boolean(false), false);
        QVERIFY(!JSONFile::number(u"1.5"_s));
        QVERIFY(!JSONFile::number(true));
        QCOMPARE(JSONFile::number(1.5), 1.5);
        QVERIFY(!JSONFile::string(7));
        QCOMPARE(JSONFile::string(u""_s), u""_s);
        QVERIFY(!JSONFile::strings(QJsonArray{u"a"_s, 1}));
        QVERIFY(!JSONFile::strings(u"a"_s));
        QCOMPARE(JSONFile::strings(QJsonArray()), QStringList());
        QVERIFY(!JSONFile::date(7));
        QVERIFY(JSONFile::isAbsent(QJsonValue::Undefined));
        QVERIFY(JSONFile::isAbsent(QJsonValue::Null));
        QVERIFY(!JSONFile::isAbsent(false));
    }

    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

private:
    QString path() const { return m_folder->filePath(u"file.json"_s); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(JSONFileTest)
#include "JSONFileTest.moc"
