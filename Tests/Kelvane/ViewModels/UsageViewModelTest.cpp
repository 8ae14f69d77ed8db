#include "Kelvane/ViewModels/UsageViewModel.h"

#include "DockCore/Storage/Paths.h"
#include "Support/ModelWorld.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace DockCore;
using namespace Kelvane;
using namespace Fakes;
using namespace Qt::StringLiterals;

class UsageViewModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        qputenv("TZ", "UTC");
        tzset();
    }
    void init() { world.emplace(); }
    void cleanup() {
        pane.reset();
        model.reset();
        world.reset();
    }

    void withoutAnyUsageThePaneIsEmpty() {
        open();
        QVERIFY(pane->isEmpty());
        QVERIFY(pane->subtitle().startsWith(u"Tracking starts now."_s));
    }

    void theRankingIsThatOfTheChosenWindow() {
        track(u"a"_s, 600, 0);
        track(u"b"_s, 3600, 10);
        open();
        QCOMPARE(ranked(), u"1 a 10m active · 1 of 7 days"_s);
        QCOMPARE(pane->total(), u"10m"_s);
        QCOMPARE(pane->totalCaption(), u"active · Last 7 days"_s);
        pane->setWindowIndex(1);
        QCOMPARE(ranked(), u"1 b 1h 0m active · 1 of 30 days|2 a 10m active · 1 of 30 days"_s);
        QCOMPARE(pane->total(), u"1h 10m"_s);
        QCOMPARE(pane->totalCaption(), u"active · Last 30 days"_s);
        QCOMPARE(pane->days()->rowCount(), 30);
        pane->setWindowIndex(7);
        QCOMPARE(pane->windowIndex(), 1);
    }

    void anEmptyWeekIsNotNoUsage() {
        track(u"b"_s, 3600, 10);
        open();
        QCOMPARE(ranked(), QString());
        QVERIFY(!pane->isEmpty());
        pane->setWindowIndex(1);
        QCOMPARE(ranked(), u"1 b 1h 0m active · 1 of 30 days"_s);
    }

    void theWindowChosenHereChangesNoProfile() {
        open();
        const QList<Profile> before = model->profiles();
        pane->setWindowIndex(1);
        QCOMPARE(model->profiles(), before);
    }

    void barsAreInProportionToTheBestScore() {
        track(u"a"_s, 600, 0);
        track(u"b"_s, 1200, 0);
        open();
        QCOMPARE(pane->ranking()->rows()[0].share, 1.0);
        QCOMPARE(pane->ranking()->rows()[1].share, 0.5);
        QVERIFY(pane->ranking()->rows()[1].reason.startsWith(u"10 points: "_s));
    }

    void erasingFallsBackToTheSystemsRecord() {
        track(u"a"_s, 600, 0);
        world->opened(u"/Applications/b.app"_s, {world->clock.now().addDays(-1)});
        open();
        QCOMPARE(pane->ranking()->rowCount(), 2);
        const QList<Profile> profiles = model->profiles();
        QSignalSpy spy(&*model, &AppModel::refreshed);
        model->eraseUsage();
        QVERIFY(spy.wait());
        QCOMPARE(ranked(), u"1 b opened on 1 day (macOS history)"_s);
        QVERIFY(pane->subtitle().startsWith(u"Tracking starts now."_s));
        QCOMPARE(pane->total(), u"under a minute"_s);
        QCOMPARE(model->profiles(), profiles);
    }

    void fiveHundredRowsAreListed() {
        UsageStore usage(world->paths().usage());
        for (int i = 0; i < 500; ++i) {
            const QString word = u"app%1"_s.arg(i, 3, 10, QChar(u'0'));
            world->install(ModelWorld::bundleID(word), word);
            usage.addSeconds(60 * (500 - i), ModelWorld::bundleID(word), word, world->clock.now());
        }
        usage.save(world->clock.now());
        open();
        QCOMPARE(pane->ranking()->rowCount(), 500);
        QCOMPARE(pane->ranking()->rows()[0].name, u"app000"_s);
        QCOMPARE(pane->ranking()->rows()[499].rank, 500);
    }

private:
    void track(const QString& word, double seconds, int daysAgo) {
        UsageStore usage(world->paths().usage());
        usage.addSeconds(seconds, ModelWorld::bundleID(word), word, world->clock.now().addDays(-daysAgo));
        usage.save(world->clock.now());
    }
    void open() {
        model.emplace(world->services(), world->paths(), nullptr, nullptr);
        pane.emplace(*model);
        const QAbstractItemModelTester ranking(pane->ranking(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        const QAbstractItemModelTester days(pane->days(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        QVERIFY(refreshAndWait(*model));
    }
    QString ranked() {
        QStringList lines;
        for (const RankingRow& row : pane->ranking()->rows())
            lines += QString::number(row.rank) + u' ' + row.name + u' ' + row.detail;
        return lines.join(u'|');
    }

    std::optional<ModelWorld> world;
    std::optional<AppModel> model;
    std::optional<UsageViewModel> pane;
};

QTEST_GUILESS_MAIN(UsageViewModelTest)
#include "UsageViewModelTest.moc"
