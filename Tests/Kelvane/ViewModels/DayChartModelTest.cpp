#include "Kelvane/ViewModels/DayChartModel.h"
#include "DockCore/UsageStore.h"

#include <QAbstractItemModelTester>
#include <QTemporaryDir>
#include <QTest>

using namespace DockCore;
using namespace Kelvane;
using namespace Qt::StringLiterals;

class DayChartModelTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    /// Thursday, 20 November 2025.
    const QDateTime m_now = QDateTime(QDate(2025, 11, 20), QTime(15, 0));

    UsageStore store() const { return UsageStore(m_folder.filePath(u"none.json"_s)); }
    QDateTime daysAgo(int days) const { return m_now.addDays(-days); }

    static QStringList labels(const DayChartModel& model) {
        QStringList result;
        for (const DayBar& bar : model.rows())
            result += bar.label;
        return result;
    }

private Q_SLOTS:
    void initTestCase() {
        qputenv("TZ", "Europe/Berlin");
        tzset();
    }

    void aWeekEndsToday() {
        DayChartModel model;
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.setDays(store(), UsageWindow::week, m_now);
        QCOMPARE(labels(model), QStringList({u"Fri"_s, u"Sat"_s, u"Sun"_s, u"Mon"_s, u"Tue"_s, u"Wed"_s, u"Today"_s}));
        QVERIFY(model.rows().last().isToday);
        QCOMPARE(model.totalSeconds(), 0.0);
    }

    void aMonthNamesEverySeventhDay() {
        DayChartModel model;
        model.setDays(store(), UsageWindow::month, m_now);
        QStringList shown = labels(model);
        QCOMPARE(shown.size(), 30);
        QCOMPARE(shown[7], u"29"_s);
        shown.removeAll(QString());
        QCOMPARE(shown, QStringList({u"Oct 22"_s, u"29"_s, u"Nov 5"_s, u"12"_s, u"Today"_s}));
    }

    void heightsAreInProportionToTheHighestDay() {
        UsageStore usage = store();
        usage.addSeconds(1800, u"a"_s, {}, daysAgo(2));
        usage.addSeconds(1800, u"b"_s, {}, daysAgo(2));
        usage.addSeconds(900, u"a"_s, {}, daysAgo(0));
        DayChartModel model;
        model.setDays(usage, UsageWindow::week, m_now);
        QCOMPARE(model.rows()[4].share, 1.0);
        QCOMPARE(model.rows()[4].peak, u"1h 0m"_s);
        QCOMPARE(model.rows()[6].share, 0.25);
        QCOMPARE(model.rows()[6].peak, QString());
        QCOMPARE(model.totalSeconds(), 4500.0);
    }

    void daysBeforeTrackingAreToldFromIdleOnes() {
        UsageStore usage = store();
        usage.addSeconds(60, u"a"_s, {}, daysAgo(3));
        DayChartModel model;
        model.setDays(usage, UsageWindow::week, m_now);
        QVERIFY(!model.rows()[2].isTracked);
        QCOMPARE(model.rows()[2].description, u"Sun, Nov 16 · not tracked yet"_s);
        QVERIFY(model.rows()[3].isTracked);
        QCOMPARE(model.rows()[3].description, u"Mon, Nov 17 · 1m active"_s);
        QVERIFY(model.rows()[4].isTracked);
        QCOMPARE(model.rows()[4].description, u"Tue, Nov 18 · no use"_s);
        QCOMPARE(model.rows()[6].description, u"Today · no use"_s);
    }

    void usageOutsideTheWindowDoesNotCount() {
        UsageStore usage = store();
        usage.addSeconds(600, u"a"_s, {}, daysAgo(7));
        DayChartModel model;
        model.setDays(usage, UsageWindow::week, m_now);
        QCOMPARE(model.totalSeconds(), 0.0);
        model.setDays(usage, UsageWindow::month, m_now);
        QCOMPARE(model.totalSeconds(), 600.0);
    }

    void aDayMoreShiftsTheWeek() {
        DayChartModel model;
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.setDays(store(), UsageWindow::week, m_now);
        model.setDays(store(), UsageWindow::week, m_now.addDays(1));
        QCOMPARE(model.rowCount(), 7);
        QCOMPARE(labels(model)[5], u"Thu"_s);
        QCOMPARE(labels(model)[6], u"Today"_s);
    }
};

QTEST_GUILESS_MAIN(DayChartModelTest)
#include "DayChartModelTest.moc"
