#include "Kelvane/ViewModels/DockText.h"

#include <QTest>

using namespace DockCore;
using namespace Kelvane;
using namespace Qt::StringLiterals;

class DockTextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void suggestion_data() {
        QTest::addColumn<int>("pinned");
        QTest::addColumn<int>("places");
        QTest::addColumn<int>("window");
        QTest::addColumn<QString>("sentence");

        QTest::newRow("one always-there app is singular")
            << 1 << 8 << 7 << u"1 always-there app, then the 8 apps you used most in the last 7 days"_s;
        QTest::newRow("several are plural")
            << 4 << 8 << 7 << u"4 always-there apps, then the 8 apps you used most in the last 7 days"_s;
        QTest::newRow("without always-there apps it is made of usage")
            << 0 << 12 << 30 << u"Made of the 12 apps you used most in the last 30 days"_s;
        QTest::newRow("one place for usage still says apps")
            << 2 << 1 << 30 << u"2 always-there apps, then the 1 apps you used most in the last 30 days"_s;
        QTest::newRow("no place for usage is said as a number")
            << 1 << 0 << 7 << u"1 always-there app, then the 0 apps you used most in the last 7 days"_s;
    }
    void suggestion() {
        QFETCH(int, pinned);
        QFETCH(int, places);
        QFETCH(int, window);
        QTEST(DockText::suggestion(pinned, places, *usageWindow(window)), "sentence");
    }

    void data_data() {
        QTest::addColumn<int>("days");
        QTest::addColumn<int>("window");
        QTest::addColumn<QString>("sentence");

        QTest::newRow("no tracked day rests on the system's records")
            << 0 << 7
            << u"No tracked history yet, so suggestions use the days each app was opened, from macOS's own records. "
               u"They sharpen as Kelvane learns your week."_s;
        QTest::newRow("one day is singular and topped up")
            << 1 << 7
            << u"Based on 1 day of tracked use, topped up with macOS's record of when apps were opened. Everything "
               u"stays on this Mac."_s;
        QTest::newRow("three days of a week are topped up")
            << 3 << 7
            << u"Based on 3 days of tracked use, topped up with macOS's record of when apps were opened. Everything "
               u"stays on this Mac."_s;
        QTest::newRow("seven days of a week need no topping up")
            << 7 << 7 << u"Based on 7 days of tracked use. Everything stays on this Mac."_s;
        QTest::newRow("seven days of a month are topped up")
            << 7 << 30
            << u"Based on 7 days of tracked use, topped up with macOS's record of when apps were opened. Everything "
               u"stays on this Mac."_s;
        QTest::newRow("thirty days of a month need no topping up")
            << 30 << 30 << u"Based on 30 days of tracked use. Everything stays on this Mac."_s;
    }
    void data() {
        QFETCH(int, days);
        QFETCH(int, window);
        QTEST(DockText::data(days, *usageWindow(window)), "sentence");
    }

    void countAgreesWithItsNoun() {
        QCOMPARE(DockText::count(0), u"0 apps in your Dock"_s);
        QCOMPARE(DockText::count(1), u"1 app in your Dock"_s);
        QCOMPARE(DockText::count(14), u"14 apps in your Dock"_s);
    }

    void nothingLeavingSaysNothing() {
        QCOMPARE(DockText::leaving({}), QString());
        QCOMPARE(DockText::leaving({u"Maps"_s, u"Music"_s}), u"Leaving: Maps, Music"_s);
    }
};

QTEST_GUILESS_MAIN(DockTextTest)
#include "DockTextTest.moc"
