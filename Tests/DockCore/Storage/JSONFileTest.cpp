#include "DockCore/Storage/JSONFile.h"

#include "DockCore/Error.h"
#include "Support/ChildProcess.h"
#include "Support/Files.h"
#include "Support/Seeds.h"

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
#include <sys/stat.h>

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

    void writesTheBytesOfEarlierVersions_data() {
        QTest::addColumn<QJsonValue>("value");
        QTest::addColumn<QByteArray>("expected");
        const auto row = [](const char* name, const QJsonValue& value, const QByteArray& expected) {
            QTest::newRow(name) << value << expected;
        };
        row("plain text", u"com.apple.mail"_s, "\"com.apple.mail\"");
        row("no text", QString(), "\"\"");
        row("quotes and backslashes are escaped", u"a\"b\\c/[]"_s, "\"a\\\"b\\\\c/[]\"");
        row("control characters are escaped", u"a\u0001\u001f\u007f"_s, "\"a\\u0001\\u001f\u007f\"");
        row("other scripts stay", u"Übung 日本\u2028"_s, "\"Übung 日本\u2028\"");
        row("beyond the basic plane stays", u"\U0001F600"_s, "\"\U0001F600\"");
        row("half a pair is escaped", QString(QChar(0xd83d)) + u'x', "\"\\ud83dx\"");
        row("the other half is escaped", QString(QChar(0xde00)), "\"\\ude00\"");
        row("a whole number has no point", 36000.0, "36000");
        row("a hundred million keeps its digits", 1e8, "100000000");
        row("minus zero is zero", -0.0, "0");
        row("the shortest digits that read back", 0.1, "0.1");
        row("as many digits as it takes", 0.1 + 0.2, "0.30000000000000004");
        row("a large number has an exponent", 1e300, "1e+300");
        row("the smallest double", std::numeric_limits<double>::denorm_min(), "5e-324");
        row("a negative number", -90.25, "-90.25");
        row("the largest whole double", 9007199254740991.0, "9007199254740991");
        row("an integer beyond what a double holds", (qint64(1) << 53) + 1, "9007199254740993");
        row("the largest 64-bit integer", std::numeric_limits<qint64>::max(), "9223372036854775807");
        row("the smallest 64-bit integer", std::numeric_limits<qint64>::min(), "-9223372036854775808");
        row("null", QJsonValue::Null, "null");
        row("an empty object", QJsonObject(), "{}");
        row("an empty array", QJsonArray(), "[]");
        row("an empty object deep inside", QJsonObject{{u"a"_s, QJsonArray{QJsonObject()}}, {u"b"_s, QJsonArray()}},
            "{\n        \"a\": [\n            {}\n        ],\n        \"b\": []\n    }");
    }
    void writesTheBytesOfEarlierVersions() {
        QFETCH(const QJsonValue, value);
        QFETCH(const QByteArray, expected);
        JSONFile::save(QJsonArray{value}, path());
        QCOMPARE(Files::contentOf(path()), "[\n    " + expected + "\n]\n");
    }

    void lineBreaksInsideStringsAreEscaped() {
        JSONFile::save(QJsonArray{u"[\n  ]"_s, u"{\r\n}"_s}, path());
        QCOMPARE(Files::contentOf(path()), "[\n    \"[\\n  ]\",\n    \"{\\r\\n}\"\n]\n");
    }

    void emptyFilesHoldOnlyBrackets() {
        JSONFile::save(QJsonArray(), path());
        QCOMPARE(Files::contentOf(path()), "[]\n");
        JSONFile::save(QJsonObject(), path());
        QCOMPARE(Files::contentOf(path()), "{}\n");
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
        QTest::newRow("minus infinity in an object")
            << QJsonValue(QJsonObject{{u"a"_s, -std::numeric_limits<double>::infinity()}});
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
        const QByteArray pipe = QFile::encodeName(m_folder->filePath(u"pipe.json"_s));
        QCOMPARE(::mkfifo(pipe.constData(), 0600), 0);
        QVERIFY(!JSONFile::read(QFile::decodeName(pipe)));
        QVERIFY(!JSONFile::read(QString()));
    }

    void aFileOverTheLimitReadsAsNothing() {
        put(path(), "[1]");
        QVERIFY(QFile::resize(path(), 64 * 1024 * 1024 + 1));
        QVERIFY(!JSONFile::read(path()));
    }

    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

private:
    QString path() const { return m_folder->filePath(u"file.json"_s); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(JSONFileTest)
#include "JSONFileTest.moc"
