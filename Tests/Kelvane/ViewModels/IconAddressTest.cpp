#include "Kelvane/ViewModels/IconAddress.h"

#include <QTest>
#include <QUrl>

using namespace Kelvane;
using namespace Qt::StringLiterals;

class IconAddressTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void survivesTheWayThroughAUrl_data() {
        QTest::addColumn<QString>("bundleID");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("path");
        QTest::newRow("a plain application") << u"org.example.mail"_s << u"Mail"_s << u"/Applications/Mail.app"_s;
        QTest::newRow("no identifier, no path") << QString() << u"Mail"_s << QString();
        QTest::newRow("every character that a URL treats in its own way")
            << u"a/b?c#d%20e%2F&f=g+h"_s << u"100 % \\ \"quoted\""_s << u"/A B/ü ß/x.app"_s;
        QTest::newRow("Arabic, Chinese and an emoji") << u"تطبيق"_s << u"备忘录 🙂"_s << u"/应用/备忘录.app"_s;
    }
    void survivesTheWayThroughAUrl() {
        QFETCH(QString, bundleID);
        QFETCH(QString, name);
        QFETCH(QString, path);
        const IconAddress address{bundleID, name, path};
        // As the QML engine hands it to a provider.
        const QString id = QUrl(address.url()).toString(QUrl::RemoveScheme | QUrl::RemoveAuthority).mid(1);
        QCOMPARE(IconAddress::parse(id), std::optional(address));
    }

    void refusesWhatIsNoAddress_data() {
        QTest::addColumn<QString>("text");
        QTest::newRow("nothing") << QString();
        QTest::newRow("two parts") << u"YQ.Yg"_s;
        QTest::newRow("four parts") << u"YQ.Yg.Yw.ZA"_s;
        QTest::newRow("a part that is not encoded") << u"YQ.*.Yw"_s;
    }
    void refusesWhatIsNoAddress() {
        QFETCH(QString, text);
        QVERIFY(!IconAddress::parse(text));
    }
};

QTEST_GUILESS_MAIN(IconAddressTest)
#include "IconAddressTest.moc"
