#include "Kelvane/Views/StandInIcon.h"

#include <QGuiApplication>
#include <QTest>

using namespace Kelvane;
using namespace Qt::StringLiterals;

class StandInIconTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theHueFollowsFromTheIdentifierAlone() {
        // Known values: they must not change with the version of Qt or from run to run.
        QCOMPARE(StandInIcon::hue(QString()), static_cast<int>(2166136261U % 360U));
        QCOMPARE(StandInIcon::hue(u"a"_s), static_cast<int>(0xE40C292CU % 360U));
        QVERIFY(StandInIcon::hue(u"org.example.mail"_s) != StandInIcon::hue(u"org.example.maps"_s));
    }

    void initials_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("initial");
        QTest::newRow("a capital stays") << u"Mail"_s << u"M"_s;
        QTest::newRow("a small letter becomes one") << u"ünder"_s << u"Ü"_s;
        QTest::newRow("blanks before it do not count") << u"  notes"_s << u"N"_s;
        QTest::newRow("Arabic") << u"تطبيق"_s << u"ت"_s;
        QTest::newRow("Chinese") << u"备忘录"_s << u"备"_s;
        QTest::newRow("an emoji of several characters is one") << u"👩‍🚀 Space"_s << u"👩‍🚀"_s;
        QTest::newRow("a letter with a mark of its own is one") << u"e\u0301clair"_s << u"E\u0301"_s;
        QTest::newRow("no name has none") << QString() << QString();
    }
    void initials() {
        QFETCH(QString, name);
        QTEST(StandInIcon::initial(name), "initial");
    }

    void isDrawnInItsSizeWithFreeCorners() {
        for (const int pixels : {28, 52, 104}) {
            const QImage icon = StandInIcon::draw(u"org.example.mail"_s, u"Mail"_s, pixels);
            QCOMPARE(icon.size(), QSize(pixels, pixels));
            QCOMPARE(icon.pixelColor(0, 0).alpha(), 0);
            QCOMPARE(icon.pixelColor(pixels / 4, pixels / 2).alpha(), 255);
            // Eight bits a colour round the hue a little.
            QVERIFY(std::abs(icon.pixelColor(pixels / 2, pixels / 4).hue() - StandInIcon::hue(u"org.example.mail"_s)) <
                    4);
        }
    }

    void theSameApplicationLooksTheSame() {
        QCOMPARE(StandInIcon::draw(u"a"_s, u"A"_s, 64), StandInIcon::draw(u"a"_s, u"A"_s, 64));
        QVERIFY(StandInIcon::draw(u"a"_s, u"A"_s, 64) != StandInIcon::draw(u"b"_s, u"A"_s, 64));
        QVERIFY(StandInIcon::draw(u"a"_s, u"A"_s, 64) != StandInIcon::draw(u"a"_s, u"B"_s, 64));
    }
};

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    StandInIconTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "StandInIconTest.moc"
