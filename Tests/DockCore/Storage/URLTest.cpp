#include "DockCore/Storage/URL.h"

#include <QtTest>

#include <type_traits>

using namespace Qt::StringLiterals;
using DockCore::URL;

static_assert(std::is_copy_constructible_v<URL>);
static_assert(std::is_nothrow_move_constructible_v<URL>);
static_assert(std::equality_comparable<URL>);

class URLTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keepsWhatIsWritten_data();
    void keepsWhatIsWritten();
    void encodesWhatAURLMayNotHold_data();
    void encodesWhatAURLMayNotHold();
    void refuses_data();
    void refuses();
    void takesThePathApart_data();
    void takesThePathApart();
    void makesFolders_data();
    void makesFolders();
};

void URLTest::keepsWhatIsWritten_data() {
    QTest::addColumn<QString>("text");
    QTest::newRow("a bundle") << u"file:///Applications/Safari.app/"_s;
    QTest::newRow("a host in a file URL") << u"file://localhost/Applications/Mail.app/"_s;
    QTest::newRow("what is encoded stays so") << u"file:///Applications/App%20Store.app/"_s;
    QTest::newRow("letters that need no encoding but have it") << u"file:///%41pplications/%7Ex.app/"_s;
    QTest::newRow("lower-case digits") << u"file:///caf%c3%a9"_s;
    QTest::newRow("upper-case digits") << u"file:///caf%C3%A9"_s;
    QTest::newRow("an upper-case scheme and host") << u"HTTP://Example.ORG/A"_s;
    QTest::newRow("dots in the path") << u"file:///a/../b/./c"_s;
    QTest::newRow("two slashes") << u"file:///a//b"_s;
    QTest::newRow("four slashes") << u"file:////server/share"_s;
    QTest::newRow("the default port") << u"http://example.org:80/"_s;
    QTest::newRow("query and fragment") << u"https://example.org/a?b=c&d=%20?/#e/?"_s;
    QTest::newRow("an empty query and fragment") << u"https://example.org/?#"_s;
    QTest::newRow("a host in brackets") << u"http://[::1]:8080/a"_s;
    QTest::newRow("a host with an encoded space") << u"smb://Tim's%20Disk/Public"_s;
    QTest::newRow("all that a path may hold") << u"file:///-._~!$&'()*+,;=:@"_s;
    QTest::newRow("no host") << u"mailto:someone@example.org"_s;
    QTest::newRow("only a path") << u"/Applications/Notes.app"_s;
    QTest::newRow("only a relative path") << u"Notes.app"_s;
}

void URLTest::keepsWhatIsWritten() {
    QFETCH(const QString, text);
    const auto url = URL::parse(text);
    QVERIFY(url);
    QCOMPARE(url->absoluteString, text);
    QCOMPARE(URL::parse(url->absoluteString), url);
}

void URLTest::encodesWhatAURLMayNotHold_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("url");
    QTest::newRow("a space") << u"file:///App Store.app/"_s << u"file:///App%20Store.app/"_s;
    QTest::newRow("spaces at both ends") << u" a "_s << u"%20a%20"_s;
    QTest::newRow("a letter with a mark") << u"file:///é"_s << u"file:///%C3%A9"_s;
    QTest::newRow("a decomposed letter") << u"file:///e\u0301"_s << u"file:///e%CC%81"_s;
    QTest::newRow("a character beyond the basic plane") << u"file:///😀"_s << u"file:///%F0%9F%98%80"_s;
    QTest::newRow("quotes and brackets") << u"file:///\"<>\\^`{|}[]"_s
                                         << u"file:///%22%3C%3E%5C%5E%60%7B%7C%7D%5B%5D"_s;
    QTest::newRow("a control character") << u"file:///a\u0007\n"_s << u"file:///a%07%0A"_s;
    QTest::newRow("a percent sign that encodes nothing") << u"file:///100%"_s << u"file:///100%25"_s;
    QTest::newRow("a percent sign before one digit") << u"file:///%4"_s << u"file:///%254"_s;
    QTest::newRow("a percent sign before letters") << u"file:///%zz%20"_s << u"file:///%25zz%20"_s;
    QTest::newRow("a second number sign") << u"file:///a#b#c"_s << u"file:///a#b%23c"_s;
    QTest::newRow("brackets after the host")
        << u"http://[::1]/[1]?[2]#[3]"_s << u"http://[::1]/%5B1%5D?%5B2%5D#%5B3%5D"_s;
    QTest::newRow("a host in another script") << u"http://müller.example/"_s << u"http://m%C3%BCller.example/"_s;
    QTest::newRow("encoded and not, mixed") << u"file:///a b%20c"_s << u"file:///a%20b%20c"_s;
}

void URLTest::encodesWhatAURLMayNotHold() {
    QFETCH(const QString, text);
    QFETCH(const QString, url);
    const auto parsed = URL::parse(text);
    QVERIFY(parsed);
    QCOMPARE(parsed->absoluteString, url);
    QCOMPARE(URL::parse(url), parsed);
}

void URLTest::refuses_data() {
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << QString();
    QTest::newRow("an empty text") << u""_s;
    QTest::newRow("a colon") << u":"_s;
    QTest::newRow("a scheme that begins with a digit") << u"1a:b"_s;
    QTest::newRow("a port that is no number") << u"http://example.org:http/"_s;
    QTest::newRow("a port that is too large") << u"http://example.org:65536/"_s;
    QTest::newRow("a negative port") << u"http://example.org:-1/"_s;
    QTest::newRow("a bracket that does not close") << u"http://[::1/"_s;
    QTest::newRow("brackets around no address") << u"http://[bad]/"_s;
}

void URLTest::refuses() {
    QFETCH(const QString, text);
    QVERIFY(!URL::parse(text));
}

void URLTest::takesThePathApart_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("last");
    QTest::addColumn<QString>("extension");
    const auto row = [](const char* name, const QString& text, const QString& path, const QString& last,
                        const QString& extension) { QTest::newRow(name) << text << path << last << extension; };
    row("a file", u"file:///Users/x/report.pdf"_s, u"/Users/x/report.pdf"_s, u"report.pdf"_s, u"pdf"_s);
    row("a trailing slash hides nothing", u"file:///A/Notes.app/"_s, u"/A/Notes.app"_s, u"Notes.app"_s, u"app"_s);
    row("many trailing slashes hide nothing", u"file:///A/Notes.app///"_s, u"/A/Notes.app"_s, u"Notes.app"_s, u"app"_s);
    row("encoded characters are decoded", u"file:///App%20Store%2Eapp/"_s, u"/App Store.app"_s, u"App Store.app"_s,
        u"app"_s);
    row("a plus sign is no space", u"file:///a+b"_s, u"/a+b"_s, u"a+b"_s, u""_s);
    row("another script", u"file:///%E6%97%A5.app"_s, u"/日.app"_s, u"日.app"_s, u"app"_s);
    row("an encoded slash divides", u"file:///a%2Fb"_s, u"/a/b"_s, u"b"_s, u""_s);
    row("the root", u"file:///"_s, u"/"_s, u"/"_s, u""_s);
    row("no path", u"http://example.org"_s, u""_s, u""_s, u""_s);
    row("a dot in the host is no extension", u"http://example.app"_s, u""_s, u""_s, u""_s);
    row("query and fragment are not in the path", u"http://h/a.b?c=/d.e#/f.g"_s, u"/a.b"_s, u"a.b"_s, u"b"_s);
    row("an encoded question mark is", u"http://h/a%3Fb.c"_s, u"/a?b.c"_s, u"a?b.c"_s, u"c"_s);
    row("no host", u"mailto:someone@example.org"_s, u"someone@example.org"_s, u"someone@example.org"_s, u"org"_s);
    row("a relative path", u"b/Notes.app"_s, u"b/Notes.app"_s, u"Notes.app"_s, u"app"_s);
    row("two extensions", u"file:///a.tar.gz"_s, u"/a.tar.gz"_s, u"a.tar.gz"_s, u"gz"_s);
    row("a hidden file", u"file:///.profile"_s, u"/.profile"_s, u".profile"_s, u""_s);
    row("a hidden file with an extension", u"file:///.a.app"_s, u"/.a.app"_s, u".a.app"_s, u"app"_s);
    row("a dot at the end", u"file:///a."_s, u"/a."_s, u"a."_s, u""_s);
    row("upper case stays", u"file:///A.APP"_s, u"/A.APP"_s, u"A.APP"_s, u"APP"_s);
}

void URLTest::takesThePathApart() {
    QFETCH(const QString, text);
    const auto url = URL::parse(text);
    QVERIFY(url);
    QTEST(url->path(), "path");
    QTEST(url->lastPathComponent(), "last");
    QTEST(url->pathExtension(), "extension");
}

void URLTest::makesFolders_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("url");
    QTest::newRow("a bundle") << u"/Applications/Safari.app"_s << u"file:///Applications/Safari.app/"_s;
    QTest::newRow("a slash is there already") << u"/Applications/"_s << u"file:///Applications/"_s;
    QTest::newRow("the root") << u"/"_s << u"file:///"_s;
    QTest::newRow("a space") << u"/A/App Store.app"_s << u"file:///A/App%20Store.app/"_s;
    QTest::newRow("letters that are not ASCII") << u"/A/Größe.app"_s << u"file:///A/Gr%C3%B6%C3%9Fe.app/"_s;
    QTest::newRow("characters that mean something in a URL") << u"/a?b#c;d[e]"_s << u"file:///a%3Fb%23c%3Bd%5Be%5D/"_s;
    QTest::newRow("a percent sign") << u"/100%20"_s << u"file:///100%2520/"_s;
    QTest::newRow("characters that stay") << u"/a+b&c=d,(e)!@'$*~:"_s << u"file:///a+b&c=d,(e)!@'$*~:/"_s;
}

void URLTest::makesFolders() {
    QFETCH(const QString, path);
    const URL folder = URL::folder(path);
    QTEST(folder.absoluteString, "url");
    QCOMPARE(URL::parse(folder.absoluteString), folder);
    QCOMPARE(folder.path() + u'/', path.endsWith(u'/') && path.size() > 1 ? path : path + u'/');
}

QTEST_GUILESS_MAIN(URLTest)

#include "URLTest.moc"
