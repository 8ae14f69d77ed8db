#include "Kelvane/ViewModels/DateText.h"

#include <QTest>

using namespace Kelvane;
using namespace Qt::StringLiterals;

class DateTextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        qputenv("TZ", "America/New_York");
        tzset();
    }

    void moment_data() {
        QTest::addColumn<QString>("moment");
        QTest::addColumn<QString>("text");
        // Now is Thursday, 20 November 2025, 10:00 in New York.
        QTest::newRow("the same day") << u"2025-11-20T14:12:00Z"_s << u"Today at 09:12"_s;
        QTest::newRow("the same local day, though another one in London")
            << u"2025-11-20T05:00:00Z"_s << u"Today at 00:00"_s;
        QTest::newRow("the evening before") << u"2025-11-19T23:40:00Z"_s << u"Yesterday at 18:40"_s;
        QTest::newRow("a minute before midnight") << u"2025-11-20T04:59:00Z"_s << u"Yesterday at 23:59"_s;
        QTest::newRow("two days ago has its weekday") << u"2025-11-18T16:05:00Z"_s << u"Tuesday at 11:05"_s;
        QTest::newRow("six days ago has its weekday") << u"2025-11-14T16:05:00Z"_s << u"Friday at 11:05"_s;
        QTest::newRow("a week ago has its date") << u"2025-11-13T16:05:00Z"_s << u"November 13, 2025 at 11:05"_s;
        QTest::newRow("summer time counts") << u"2025-11-01T18:30:00Z"_s << u"November 1, 2025 at 14:30"_s;
        QTest::newRow("the future has its date") << u"2025-11-22T16:05:00Z"_s << u"November 22, 2025 at 11:05"_s;
    }
    void moment() {
        QFETCH(QString, moment);
        const QDateTime now = QDateTime::fromString(u"2025-11-20T15:00:00Z"_s, Qt::ISODate);
        QTEST(DateText::moment(QDateTime::fromString(moment, Qt::ISODate), now), "text");
    }
};

QTEST_GUILESS_MAIN(DateTextTest)
#include "DateTextTest.moc"
