#include "Kelvane/ViewModels/DayBar.h"

#include "DockCore/UsageStore.h"

#include <QTemporaryDir>
#include <QTest>

using namespace DockCore;
using namespace Kelvane;
using namespace Qt::StringLiterals;

class DayBarTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    /// Thursday, 20 November 2025.
    const QDateTime m_now = QDateTime(QDate(2025, 11, 20), QTime(15, 0));

    UsageStore store() const { return UsageStore(m_folder.filePath(u"none.json"_s)); }
    QDateTime daysAgo(int days) const { return m_now.addDays(-days); }

    static QStringList labels(const QList<DayBar>& bars) {
        QStringList result;
        for (const DayBar& bar : bars)
            result += bar.label;
        return result;
    }
    static double totalSeconds(const QList<DayBar>& bars) {
        double total = 0;
        for (const DayBar& bar : bars)
            total += bar.seconds;
        return total;
    }

private Q_SLOTS:
    void initTestCase() {
        qputenv("TZ", "Europe/Berlin");
        tzset();
    }

    void weekEndsToday() {
        const QList<DayBar> bars = DayBar::bars(store(), UsageWindow::week, m_now);
        QCOMPARE(labels(bars), QStringList({u"Fri"_s, u"Sat"_s, u"Sun"_s, u"Mon"_s, u"Tue"_s, u"Wed"_s, u"Today"_s}));
        QVERIFY(bars.last().isToday);
        QCOMPARE(totalSeconds(bars), 0.0);
    }

    void monthNamesEverySeventhDay() {
        const QList<DayBar> bars = DayBar::bars(store(), UsageWindow::month, m_now);
        QStringList shown = labels(bars);
        QCOMPARE(shown.size(), 30);
        QCOMPARE(shown[7], u"29"_s);
        shown.removeAll(QString());
        QCOMPARE(shown, QStringList({u"Oct 22"_s, u"29"_s, u"Nov 5"_s, u"12"_s, u"Today"_s}));
    }

    void sharesAreRelativeToTheHighestDay() {
        UsageStore usage = store();
        usage.addSeconds(1800, u"a"_s, {}, daysAgo(2));
        usage.addSeconds(1800, u"b"_s, {}, daysAgo(2));
        usage.addSeconds(900, u"a"_s, {}, daysAgo(0));
        const QList<DayBar> bars = DayBar::bars(usage, UsageWindow::week, m_now);
        QCOMPARE(bars[4].share, 1.0);
        QCOMPARE(bars[4].peak, u"1h 0m"_s);
        QCOMPARE(bars[6].share, 0.25);
        QCOMPARE(bars[6].peak, QString());
        QCOMPARE(totalSeconds(bars), 4500.0);
    }

    void daysBeforeTrackingDifferFromIdleDays() {
        UsageStore usage = store();
        usage.addSeconds(60, u"a"_s, {}, daysAgo(3));
        const QList<DayBar> bars = DayBar::bars(usage, UsageWindow::week, m_now);
        QVERIFY(!bars[2].isTracked);
        QCOMPARE(bars[2].description, u"Sun, Nov 16 · not tracked yet"_s);
        QVERIFY(bars[3].isTracked);
        QCOMPARE(bars[3].description, u"Mon, Nov 17 · 1m active"_s);
        QVERIFY(bars[4].isTracked);
        QCOMPARE(bars[4].description, u"Tue, Nov 18 · no use"_s);
        QCOMPARE(bars[6].description, u"Today · no use"_s);
    }

    void usageOutsideTheWindowDoesNotCount() {
        UsageStore usage = store();
        usage.addSeconds(600, u"a"_s, {}, daysAgo(7));
        const QList<DayBar> bars = DayBar::bars(usage, UsageWindow::week, m_now);
        QCOMPARE(totalSeconds(bars), 0.0);
        QCOMPARE(totalSeconds(DayBar::bars(usage, UsageWindow::month, m_now)), 600.0);
    }
};

QTEST_GUILESS_MAIN(DayBarTest)
#include "DayBarTest.moc"
