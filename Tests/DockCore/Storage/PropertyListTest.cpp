#include "DockCore/Storage/PropertyList.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

#include <bit>
#include <clocale>
#include <cmath>
#include <limits>
#include <type_traits>

using namespace Qt::StringLiterals;
using DockCore::PropertyList;
using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;
using Format = PropertyList::Format;

Q_DECLARE_METATYPE(DockCore::PropertyList)

static_assert(std::is_copy_constructible_v<PropertyList>);
static_assert(std::is_nothrow_move_constructible_v<PropertyList>);
static_assert(std::equality_comparable<PropertyList>);

namespace {

PropertyList integer(qint64 number) {
    return {number};
}

/// `levels` arrays within each other.
PropertyList nested(int levels) {
    PropertyList list{Array()};
    for (int level = 1; level < levels; ++level)
        list = PropertyList{Array{list}};
    return list;
}

QByteArray xml(const QByteArray& content) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">" + content + "</plist>\n";
}

/// A binary property list of the given objects; the first one is its top.
QByteArray binary(const QList<QByteArray>& objects, quint64 top = 0) {
    QByteArray bytes("bplist00");
    QByteArray table;
    for (const QByteArray& object : objects) {
        QByteArray offset(4, '\0');
        qToBigEndian(static_cast<quint32>(bytes.size()), offset.data());
        table += offset;
        bytes += object;
    }
    QByteArray numbers(24, '\0');
    qToBigEndian(static_cast<quint64>(objects.size()), numbers.data());
    qToBigEndian(top, numbers.data() + 8);
    qToBigEndian(static_cast<quint64>(bytes.size()), numbers.data() + 16);
    return bytes + table + QByteArray(6, '\0') + "\x04\x02" + numbers;
}

/// The two bytes of a reference to the object of this number.
QByteArray reference(int object) {
    QByteArray bytes(2, '\0');
    qToBigEndian(static_cast<quint16>(object), bytes.data());
    return bytes;
}

QByteArray nestedBinary(int levels) {
    QList<QByteArray> objects;
    for (int level = 1; level < levels; ++level)
        objects.append("\xA1" + reference(level));
    return binary(objects << "\xA0");
}

PropertyList smallDock() {
    const Dictionary data = {
        {u"bundle-identifier"_s, {u"org.example.Größe"_s}},
        {u"book"_s, {QByteArray("book\0\x01\xFF", 7)}},
        {u"file-mod-date"_s, integer(3593825647)},
        {u"parent"_s, {PropertyList::UID{7}}},
        {u"is-beta"_s, {false}},
    };
    return {Dictionary{{u"persistent-apps"_s, {Array{{Dictionary{{u"tile-data"_s, {data}}}}}}},
                       {u"stamp"_s, {535282327.35962701}},
                       {u"when"_s, {PropertyList::Date{1000}}}}};
}

/// Any property list that both formats can hold.
class Lists {
public:
    explicit Lists(quint32 seed)
        : m_random(seed) {}

    PropertyList next(int levels = 4) {
        switch (m_random.bounded(levels > 0 ? 10 : 8)) {
        case 0:
            return {m_random.bounded(2) == 1};
        case 1:
            return {static_cast<qint64>(m_random.generate64()) >> m_random.bounded(64)};
        case 2:
            return {(1ULL << 63) + (m_random.generate64() >> 1)};
        case 3:
            return {real()};
        case 4:
            return {text()};
        case 5:
            return {data()};
        case 6:
            return {PropertyList::Date{std::floor(m_random.generateDouble() * 1e10 - 5e9)}};
        case 7:
            return {PropertyList::UID{m_random.generate()}};
        case 8:
            return {array(levels)};
        default:
            return {dictionary(levels)};
        }
    }

private:
    double real() {
        while (true) {
            const double number = std::bit_cast<double>(m_random.generate64());
            if (std::isfinite(number))
                return number;
        }
    }

    QString text() {
        static constexpr std::array<char32_t, 14> alphabet = {U'a',  U'Z',  U' ', U'<', U'&',  U'>', U'"',
                                                              U'\n', U'\t', U'ü', U'ß', U'語', U'😀', U'\u0301'};
        QString result;
        for (int count = m_random.bounded(20); count > 0; --count)
            result += QString::fromUcs4(&alphabet[m_random.bounded(quint32(alphabet.size()))], 1);
        return result;
    }

    QByteArray data() {
        QByteArray result;
        for (int count = m_random.bounded(40); count > 0; --count)
            result += static_cast<char>(m_random.bounded(256));
        return result;
    }

    Array array(int levels) {
        Array result;
        for (int count = m_random.bounded(6); count > 0; --count)
            result.append(next(levels - 1));
        return result;
    }

    Dictionary dictionary(int levels) {
        Dictionary result;
        for (int count = m_random.bounded(6); count > 0; --count)
            result.insert(text(), next(levels - 1));
        return result;
    }

    QRandomGenerator m_random;
};

} // namespace

class PropertyListTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void comesBackFromBothFormats_data();
    void comesBackFromBothFormats();
    void xmlKeepsWholeSecondsOfADate();
    void binaryKeepsFractionsOfADate();
    void typesStayApart();
    void isRefusedByXMLOnly_data();
    void isRefusedByXMLOnly();
    void isRefusedByBothFormats_data();
    void isRefusedByBothFormats();
    void numbersDoNotDependOnTheLocale();
    void findsOneTextWithoutTheRest();
    void readsWhatOthersWrote_data();
    void readsWhatOthersWrote();
    void refusesDamage_data();
    void refusesDamage();
    void refusesEveryTruncation();
    void survivesEveryChangedByte();
    void takesAsManyLevelsAsItSays();
    void unfoldsSharedValues();
    void readsALargeFile();
    void readsDictionariesFromFiles();
    void anyListComesBack_data();
    void anyListComesBack();
};

void PropertyListTest::comesBackFromBothFormats_data() {
    QTest::addColumn<PropertyList>("list");
    QTest::newRow("true") << PropertyList{true};
    QTest::newRow("false") << PropertyList{false};
    for (const qint64 number : {0LL,
                                1LL,
                                127LL,
                                128LL,
                                255LL,
                                256LL,
                                32767LL,
                                32768LL,
                                65535LL,
                                65536LL,
                                2147483647LL,
                                2147483648LL,
                                4294967295LL,
                                4294967296LL,
                                9223372036854775807LL,
                                -1LL,
                                -128LL,
                                -129LL,
                                -32769LL,
                                -2147483648LL,
                                -2147483649LL,
                                -9223372036854775807LL - 1})
        QTest::addRow("the integer %lld", static_cast<long long>(number)) << integer(number);
    QTest::newRow("the first integer above the signed range") << PropertyList{1ULL << 63};
    QTest::newRow("the largest unsigned integer") << PropertyList{std::numeric_limits<quint64>::max()};
    for (const double number : {0.0, 1.0, -1.5, 0.1, 535282327.35962701, 1e300, -1e-300, 5e-324,
                                std::numeric_limits<double>::max(), std::numeric_limits<double>::infinity(),
                                -std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()})
        QTest::addRow("the real %.17g", number) << PropertyList{number};
    QTest::newRow("an empty string") << PropertyList{u""_s};
    QTest::newRow("ASCII") << PropertyList{u"Safari"_s};
    QTest::newRow("Latin letters with marks") << PropertyList{u"Größe, Éditeur"_s};
    QTest::newRow("another script") << PropertyList{u"日本語"_s};
    QTest::newRow("characters beyond the basic plane") << PropertyList{u"😀 𝔘"_s};
    QTest::newRow("a decomposed letter") << PropertyList{u"e\u0301"_s};
    QTest::newRow("markup") << PropertyList{u"<a href=\"x\">&amp;]]></a>"_s};
    QTest::newRow("line ends and tabs") << PropertyList{u"a\nb\r\nc\td"_s};
    QTest::newRow("spaces at both ends") << PropertyList{u"  a  "_s};
    QTest::newRow("only spaces") << PropertyList{u"   "_s};
    QTest::newRow("a long string") << PropertyList{QString(100'000, u'ü')};
    QTest::newRow("no data") << PropertyList{QByteArray()};
    QTest::newRow("one null byte") << PropertyList{QByteArray(1, '\0')};
    QByteArray everyByte;
    for (int byte = 0; byte < 256; ++byte)
        everyByte += static_cast<char>(byte);
    QTest::newRow("every byte") << PropertyList{everyByte};
    QTest::newRow("much data") << PropertyList{everyByte.repeated(500)};
    QTest::newRow("the reference date") << PropertyList{PropertyList::Date{0}};
    QTest::newRow("a date before the reference date") << PropertyList{PropertyList::Date{-1}};
    QTest::newRow("a date before 1901") << PropertyList{PropertyList::Date{-12'000'000'000.0}};
    QTest::newRow("a date after 2038") << PropertyList{PropertyList::Date{5'000'000'000.0}};
    for (const quint64 number : {0ULL, 255ULL, 256ULL, 65536ULL, 4294967295ULL})
        QTest::addRow("the UID %llu", static_cast<unsigned long long>(number))
            << PropertyList{PropertyList::UID{number}};
    for (const int count : {1, 2, 14, 15, 255, 256, 70'000}) {
        Array dates;
        for (int number = 0; number < count; ++number)
            dates.append({PropertyList::Date{86'400.0 * (number % 40'000 - 7)}});
        QTest::addRow("%d dates, some of them equal", count) << PropertyList{dates};
    }
    QTest::newRow("dates and another value")
        << PropertyList{Array{{PropertyList::Date{1}}, {u"x"_s}, {PropertyList::Date{2}}}};
    QTest::newRow("an empty array") << PropertyList{Array()};
    QTest::newRow("an empty dictionary") << PropertyList{Dictionary()};
    QTest::newRow("empty containers in containers")
        << PropertyList{Dictionary{{u"a"_s, {Array{{Array()}, {Dictionary()}}}}, {u"b"_s, {Dictionary()}}}};
    QTest::newRow("an empty key") << PropertyList{Dictionary{{u""_s, {u"x"_s}}}};
    QTest::newRow("keys that need escaping") << PropertyList{Dictionary{{u"<&>"_s, {true}}, {u"ключ 😀"_s, {false}}}};
    QTest::newRow("equal values of different types") << PropertyList{Array{{true},
                                                                           {qint64(1)},
                                                                           {1.0},
                                                                           {u"1"_s},
                                                                           {QByteArray("1")},
                                                                           {PropertyList::UID{1}},
                                                                           {PropertyList::Date{1}},
                                                                           {false},
                                                                           {qint64(0)},
                                                                           {0.0},
                                                                           {u""_s},
                                                                           {QByteArray()}}};
    QTest::newRow("the same value many times") << PropertyList{Array(1000, smallDock())};
    QTest::newRow("more than 255 objects") << [] {
        Array array;
        for (qint64 number = 0; number < 70'000; ++number)
            array.append(PropertyList{number});
        return PropertyList{array};
    }();
    QTest::newRow("a Dock") << smallDock();
}

void PropertyListTest::comesBackFromBothFormats() {
    QFETCH(const PropertyList, list);
    for (const Format format : {Format::xml, Format::binary}) {
        const QByteArray bytes = list.serialize(format);
        QVERIFY(!bytes.isEmpty());
        QCOMPARE(PropertyList::format(bytes), format);
        const auto back = PropertyList::parse(bytes);
        QVERIFY(back);
        QVERIFY(*back == list);
        QCOMPARE(back->value.index(), list.value.index());
        QCOMPARE(back->serialize(format), bytes);
    }
}

void PropertyListTest::xmlKeepsWholeSecondsOfADate() {
    for (const auto& [seconds, kept] :
         {std::pair(1.75, 1.0), std::pair(-0.25, -1.0), std::pair(-12'000'000'000.5, -12'000'000'001.0)}) {
        const auto back = PropertyList::parse(PropertyList{PropertyList::Date{seconds}}.serialize(Format::xml));
        QVERIFY(back == PropertyList{PropertyList::Date{kept}});
    }
}

void PropertyListTest::binaryKeepsFractionsOfADate() {
    Array together;
    for (const double seconds : {1.75, -0.25, 672508800.123456, -12'000'000'000.5, 1e15}) {
        const PropertyList list{PropertyList::Date{seconds}};
        together.append(list);
        QVERIFY(PropertyList::parse(PropertyList{together}.serialize(Format::binary)) == PropertyList{together});
        QVERIFY(PropertyList::parse(list.serialize(Format::binary)) == list);
    }
}

void PropertyListTest::typesStayApart() {
    QVERIFY(PropertyList{true} != integer(1));
    QVERIFY(integer(1) != PropertyList{1.0});
    QVERIFY(PropertyList{PropertyList::UID{1}} != integer(1));
    QVERIFY(PropertyList{u"1"_s} != PropertyList{QByteArray("1")});
    QVERIFY(!integer(1).string() && !integer(1).array() && !integer(1).dictionary());
    QVERIFY(PropertyList{u"x"_s}.string() && PropertyList{Array()}.array() && PropertyList{Dictionary()}.dictionary());
}

void PropertyListTest::isRefusedByXMLOnly_data() {
    QTest::addColumn<PropertyList>("list");
    QTest::newRow("a control character") << PropertyList{u"a\u0001b"_s};
    QTest::newRow("a character that is none") << PropertyList{u"a\uFFFEb"_s};
    QTest::newRow("a control character in a key") << PropertyList{Dictionary{{u"\u0007"_s, {true}}}};
    QTest::newRow("a dictionary that XML takes for a UID") << PropertyList{Dictionary{{u"CF$UID"_s, integer(5)}}};
    QTest::newRow("a date that no calendar reaches") << PropertyList{PropertyList::Date{1e18}};
}

void PropertyListTest::isRefusedByXMLOnly() {
    QFETCH(const PropertyList, list);
    QCOMPARE(list.serialize(Format::xml), QByteArray());
    QVERIFY(PropertyList::parse(list.serialize(Format::binary)) == list);
}

void PropertyListTest::isRefusedByBothFormats_data() {
    QTest::addColumn<PropertyList>("list");
    QTest::newRow("a null character") << PropertyList{u"a\0b"_s};
    QTest::newRow("a null character in a key") << PropertyList{Dictionary{{u"a\0b"_s, {true}}}};
    QTest::newRow("half a surrogate pair") << PropertyList{QString(QChar(0xD83D))};
    QTest::newRow("a UID over 32 bits") << PropertyList{PropertyList::UID{1ULL << 32}};
    QTest::newRow("a level too many") << nested(513);
    QTest::newRow("a level too many, deep inside") << PropertyList{Dictionary{{u"a"_s, nested(512)}}};
}

void PropertyListTest::isRefusedByBothFormats() {
    QFETCH(const PropertyList, list);
    QCOMPARE(list.serialize(Format::xml), QByteArray());
    QCOMPARE(list.serialize(Format::binary), QByteArray());
}

void PropertyListTest::numbersDoNotDependOnTheLocale() {
    const QByteArray before = std::setlocale(LC_ALL, nullptr);
    const bool hasComma = std::setlocale(LC_ALL, "de_DE.UTF-8") || std::setlocale(LC_ALL, "fr_FR.UTF-8");
    if (!hasComma)
        QSKIP("No locale with a decimal comma is installed here.");
    const PropertyList list{Array{{0.1}, {535282327.35962701}, {-2.5e-7}}};
    const QByteArray bytes = list.serialize(Format::xml);
    const auto back = PropertyList::parse(bytes);
    std::setlocale(LC_ALL, before.constData());
    QVERIFY(bytes.contains("<real>0.1"));
    QVERIFY(back == list);
}

void PropertyListTest::findsOneTextWithoutTheRest() {
    const PropertyList list = {PropertyList::Dictionary{{u"name"_s, {u"Überblick 😀"_s}},
                                                        {u"number"_s, {qint64(7)}},
                                                        {u"empty"_s, {u""_s}},
                                                        {u"inner"_s, {PropertyList::Dictionary{{u"a"_s, {u"b"_s}}}}}}};
    for (const auto format : {PropertyList::Format::xml, PropertyList::Format::binary}) {
        const QByteArray bytes = list.serialize(format);
        QCOMPARE(PropertyList::string(bytes, u"name"_s), std::optional(u"Überblick 😀"_s));
        QCOMPARE(PropertyList::string(bytes, u"empty"_s), std::optional(u""_s));
        QCOMPARE(PropertyList::string(bytes, u"number"_s), std::nullopt);
        QCOMPARE(PropertyList::string(bytes, u"missing"_s), std::nullopt);
        QCOMPARE(PropertyList::string(bytes, u"a"_s), std::nullopt);
        QCOMPARE(PropertyList::string(bytes.chopped(20), u"name"_s), std::nullopt);
        QCOMPARE(PropertyList::string(PropertyList{PropertyList::Array{list}}.serialize(format), u"name"_s),
                 std::nullopt);
    }
    QCOMPARE(PropertyList::string({}, u"name"_s), std::nullopt);
}

void PropertyListTest::readsWhatOthersWrote_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<PropertyList>("list");
    QTest::newRow("data with line breaks and tabs")
        << xml("<data>\n\t\tYm9v\n\t\tawA=\n\t</data>") << PropertyList{QByteArray("book\0", 5)};
    QTest::newRow("entities") << xml("<string>&lt;&gt;&amp;&quot;&apos;&#65;&#x42;</string>")
                              << PropertyList{u"<>&\"'AB"_s};
    QTest::newRow("character data") << xml("<string><![CDATA[<b>]]></string>") << PropertyList{u"<b>"_s};
    QTest::newRow("a comment that looks like the end of a container")
        << xml("<array><!-- </array> --><true/></array>") << PropertyList{Array{{true}}};
    QTest::newRow("an integer in hexadecimal") << xml("<integer>0x1F</integer>") << integer(31);
    QTest::newRow("a UID") << xml("<dict><key>CF$UID</key><integer>5</integer></dict>")
                           << PropertyList{PropertyList::UID{5}};
    QTest::newRow("an XML file that begins with a byte order mark")
        << "\xEF\xBB\xBF" + xml("<true/>") << PropertyList{true};
    QTest::newRow("a real of 32 bits") << binary({QByteArray("\x22\x3F\xC0\0\0", 5)}) << PropertyList{1.5};
    QTest::newRow("an integer of 16 bits is unsigned") << binary({"\x11\xFF\xFF"}) << integer(65535);
    QTest::newRow("an integer of 32 bits is unsigned") << binary({"\x12\xFF\xFF\xFF\xFF"}) << integer(4294967295);
    QTest::newRow("an integer of 64 bits is signed") << binary({"\x13\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"}) << integer(-1);
    QTest::newRow("a top that is not the first object") << binary({"\x09", "\x08"}, 1) << PropertyList{false};
}

void PropertyListTest::readsWhatOthersWrote() {
    QFETCH(const QByteArray, bytes);
    QFETCH(const PropertyList, list);
    const auto read = PropertyList::parse(bytes);
    QVERIFY(read);
    QVERIFY(*read == list);
}

void PropertyListTest::refusesDamage_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("blanks") << QByteArray(" \n ");
    QTest::newRow("text") << QByteArray("hello");
    QTest::newRow("JSON") << QByteArray("{\"a\": 1}");
    QTest::newRow("a picture") << QByteArray("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16);
    QTest::newRow("other XML") << QByteArray("<?xml version=\"1.0\"?><html><body/></html>");
    QTest::newRow("an unknown element") << xml("<dict><key>a</key><null/></dict>");
    QTest::newRow("text among elements") << xml("<array>junk<true/></array>");
    QTest::newRow("a dictionary without keys") << xml("<dict><true/></dict>");
    QTest::newRow("containers that close crosswise") << xml("<array><dict></array></dict>");
    QTest::newRow("bytes that are not UTF-8") << xml("<string>\xFF\xFE</string>");
    QTest::newRow("a null byte") << xml(QByteArray("<string>a\0b</string>", 20));
    QTest::newRow("10,000 levels of XML")
        << xml(QByteArray("<array>").repeated(10'000) + QByteArray("</array>").repeated(10'000));
    QTest::newRow("10,000 levels of XML between comments that close them")
        << xml(QByteArray("<array><!--</array>-->").repeated(10'000) + QByteArray("</array>").repeated(10'000));
    QTest::newRow("a million levels of XML that never close") << xml(QByteArray("<array>").repeated(1'000'000));
    QTest::newRow("10,000 binary levels") << nestedBinary(10'000);
    QTest::newRow("only the mark of a binary file") << QByteArray("bplist00");
    QTest::newRow("a binary file of zeros") << "bplist00" + QByteArray(100, '\0');
    QTest::newRow("a binary file of ones") << "bplist00" + QByteArray(100, '\xFF');
    QTest::newRow("an array that holds itself") << binary({"\xA1" + reference(0)});
    QTest::newRow("a dictionary that holds itself") << binary({"\xD1" + reference(1) + reference(0), "\x51k"});
    QTest::newRow("a dictionary that is its own key") << binary({"\xD1" + reference(0) + reference(0)});
    QTest::newRow("two arrays that hold each other") << binary({"\xA1" + reference(1), "\xA1" + reference(0)});
    QTest::newRow("a ring that the top is not part of")
        << binary({"\xA1" + reference(1), "\xA1" + reference(2), "\xA1" + reference(1)});
    QTest::newRow("a reference to no object") << binary({"\xA1" + reference(1)});
    QTest::newRow("a top that is no object") << binary({"\x09"}, 1);
    QTest::newRow("a key that is no string") << binary({"\xD1" + reference(1) + reference(1), "\x09"});
    QTest::newRow("a string longer than the file") << binary({"\x5E"
                                                              "abc"});
    QTest::newRow("a string of the largest length") << binary({"\x5F\x13\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"
                                                               "abc"});
    QTest::newRow("an array of the largest length") << binary({"\xAF\x13\x7F\xFF\xFF\xFF\xFF\xFF\xFF\xFF"});
    QTest::newRow("a length that is no integer") << binary({"\x5F\x23"
                                                            "abcdefgh"});
    QTest::newRow("an unknown kind of object") << binary({"\xC0"});
    QTest::newRow("an ASCII string that is none") << binary({"\x51\xFC"});
    QTest::newRow("a UTF-16 string with half a pair") << binary({"\x61\xD8\x3D"});
    QTest::newRow("a UTF-16 string with a null character") << binary({QByteArray("\x61\0\0", 3)});
    QTest::newRow("an integer over 64 bits") << binary({QByteArray("\x14\x01", 2) + QByteArray(15, '\0')});

    QList<QByteArray> laughs;
    for (int level = 1; level <= 9; ++level)
        laughs.append("\xAA" + reference(level).repeated(10));
    QTest::newRow("few objects that unfold to a billion") << binary(laughs << "\x09");
    QList<QByteArray> texts;
    for (int level = 1; level <= 3; ++level)
        texts.append("\xAF\x11" + QByteArray("\x01\0", 2) + reference(level).repeated(256));
    QByteArray size(4, '\0');
    qToBigEndian(quint32(1'000'000), size.data());
    QTest::newRow("one long text that unfolds to many gigabytes")
        << binary(QList<QByteArray>(texts) << "\x4F\x12" + size + QByteArray(1'000'000, 'x'));
    QTest::newRow("a dictionary deep down that unfolds too far") << binary([&laughs] {
        QList<QByteArray> objects = laughs;
        objects.last() = "\xD0";
        return objects;
    }());
}

void PropertyListTest::refusesDamage() {
    QFETCH(const QByteArray, bytes);
    QVERIFY(!PropertyList::parse(bytes));
}

void PropertyListTest::refusesEveryTruncation() {
    const PropertyList list = smallDock();
    const QByteArray whole = list.serialize(Format::binary);
    for (qsizetype length = 0; length < whole.size(); ++length)
        QVERIFY2(!PropertyList::parse(whole.first(length)), qPrintable(QString::number(length)));

    // An XML file can lose its end without losing its value.
    const QByteArray text = list.serialize(Format::xml);
    for (qsizetype length = 0; length < text.size(); ++length) {
        const auto read = PropertyList::parse(text.first(length));
        QVERIFY2(!read || *read == list, qPrintable(QString::number(length)));
        QVERIFY2(!read || length >= text.lastIndexOf("</dict>"), qPrintable(QString::number(length)));
    }
}

void PropertyListTest::survivesEveryChangedByte() {
    // Whatever is read from a damaged file must be a value that can be written.
    for (const Format format : {Format::xml, Format::binary}) {
        const QByteArray whole = smallDock().serialize(format);
        int readable = 0;
        for (qsizetype index = 0; index < whole.size(); ++index) {
            for (const char byte : {'\0', '\x01', '\x7F', '\xFF', '<', '/', '\xA1', '\xD1'}) {
                QByteArray changed = whole;
                changed[index] = byte;
                if (const auto read = PropertyList::parse(changed)) {
                    ++readable;
                    QVERIFY(PropertyList::parse(read->serialize(Format::binary)) == *read);
                }
            }
        }
        QVERIFY(readable > 0);
    }
}

void PropertyListTest::takesAsManyLevelsAsItSays() {
    const PropertyList deepest = nested(512);
    for (const Format format : {Format::xml, Format::binary})
        QVERIFY(PropertyList::parse(deepest.serialize(format)) == deepest);
    QVERIFY(PropertyList::parse(nestedBinary(512)) == deepest);
    QVERIFY(!PropertyList::parse(nestedBinary(513)));
    const auto text = [](int levels) {
        return xml(QByteArray("<dict><key>a</key>").repeated(levels - 1) + "<dict/>" +
                   QByteArray("</dict>").repeated(levels - 1));
    };
    QVERIFY(PropertyList::parse(text(512)));
    QVERIFY(!PropertyList::parse(text(514)));
}

void PropertyListTest::unfoldsSharedValues() {
    const auto read = PropertyList::parse(
        binary({"\xA3" + reference(1) + reference(1) + reference(2), "\xA2" + reference(2) + reference(2), "\x51x"}));
    const PropertyList text{u"x"_s};
    const PropertyList pair{Array{text, text}};
    QVERIFY(read == PropertyList{Array({pair, pair, text})});
}

void PropertyListTest::readsALargeFile() {
    QByteArray content("<array>");
    for (int index = 0; content.size() < 50'000'000; ++index)
        content += "<dict><key>name</key><string>Application " + QByteArray::number(index) +
                   "</string><key>book</key><data>" + QByteArray("Ym9vawAB").repeated(40) + "</data></dict>";
    const QByteArray bytes = xml(content + "</array>");
    QElapsedTimer timer;
    timer.start();
    const auto read = PropertyList::parse(bytes);
    qInfo("read %lld MB of XML in %lld ms", static_cast<long long>(bytes.size() / 1'000'000),
          static_cast<long long>(timer.restart()));
    QVERIFY(read && read->array());
    QVERIFY(read->array()->size() > 100'000);
    const QByteArray smaller = read->serialize(Format::binary);
    timer.restart();
    QVERIFY(PropertyList::parse(smaller) == *read);
    qInfo("read %lld MB of binary in %lld ms", static_cast<long long>(smaller.size() / 1'000'000),
          static_cast<long long>(timer.elapsed()));
}

void PropertyListTest::readsDictionariesFromFiles() {
    QTemporaryDir folder;
    const QString path = folder.filePath(u"dock.plist"_s);
    const auto put = [&path](const QByteArray& bytes) {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    };
    QVERIFY(!PropertyList::readDictionary(path));
    for (const Format format : {Format::xml, Format::binary}) {
        QVERIFY(put(smallDock().serialize(format)));
        QVERIFY(PropertyList::readDictionary(path) == *smallDock().dictionary());
    }
    QVERIFY(put(PropertyList{Array()}.serialize(Format::xml)));
    QVERIFY2(!PropertyList::readDictionary(path), "an array is no dictionary");
    QVERIFY(put(""));
    QVERIFY(!PropertyList::readDictionary(path));
    QVERIFY2(!PropertyList::readDictionary(folder.path()), "a folder is no file");
    QVERIFY2(!PropertyList::readDictionary(u"/dev/zero"_s), "a device never ends");
    QFile sparse(path);
    QVERIFY(sparse.open(QIODevice::ReadWrite) && sparse.resize(257LL * 1024 * 1024));
    QVERIFY2(!PropertyList::readDictionary(path), "a file of 257 MB is too large");
    QVERIFY(QFile::link(u"nowhere"_s, folder.filePath(u"link"_s)));
    QVERIFY(!PropertyList::readDictionary(folder.filePath(u"link"_s)));
}

void PropertyListTest::anyListComesBack_data() {
    QTest::addColumn<quint32>("seed");
    QTest::newRow("with a fixed seed") << quint32(20260311);
    QTest::newRow("with a random seed") << QRandomGenerator::global()->generate();
}

void PropertyListTest::anyListComesBack() {
    QFETCH(const quint32, seed);
    qInfo("seed %u", seed);
    Lists lists(seed);
    for (int round = 0; round < 1000; ++round) {
        const PropertyList list = lists.next();
        for (const Format format : {Format::xml, Format::binary}) {
            const QByteArray bytes = list.serialize(format);
            const auto back = PropertyList::parse(bytes);
            QVERIFY2(back && *back == list, qPrintable(QString::number(round)));
            QCOMPARE(back->serialize(format), bytes);
        }
    }
}

QTEST_GUILESS_MAIN(PropertyListTest)

#include "PropertyListTest.moc"
