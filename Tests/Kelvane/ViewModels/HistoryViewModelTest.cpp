#include "Kelvane/ViewModels/HistoryViewModel.h"

#include "DockCore/Storage/Paths.h"
#include "Support/ModelWorld.h"

#include <QAbstractItemModelTester>
#include <QFile>
#include <QTest>

using namespace DockCore;
using namespace Kelvane;
using namespace Fakes;
using namespace Qt::StringLiterals;

class HistoryViewModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        qputenv("TZ", "UTC");
        tzset();
    }
    void init() {
        world.emplace(QStringList{u"a"_s, u"b"_s});
        model.emplace(world->services(), world->paths(), nullptr, nullptr);
        model->captureOriginal();
        pinActive(*model, {u"c"_s, u"a"_s});
        pane.emplace(*model);
        tester = std::make_unique<QAbstractItemModelTester>(pane->snapshots(),
                                                            QAbstractItemModelTester::FailureReportingMode::QtTest);
        QVERIFY(refreshAndWait(*model));
    }
    void cleanup() {
        tester.reset();
        pane.reset();
        model.reset();
        world.reset();
    }

    void theOriginalIsMarkedAndSameAsNow() {
        const SnapshotRow row = rows().at(0);
        QCOMPARE(row.reason, u"Before Kelvane"_s);
        QVERIFY(row.isOriginal);
        QVERIFY(row.isSameAsNow);
        QCOMPARE(row.caption, u"Today at 10:00 · 2 apps"_s);
        QCOMPARE(row.names, u"a, b"_s);
        QCOMPARE(row.changes, u"Restoring it would change nothing."_s);
        QVERIFY(!pane->hasPrevious());
    }

    void oneAppIsSingular() {
        world->setDock({u"a"_s});
        capture();
        AppModel fresh(world->services(), world->paths(), nullptr, nullptr);
        HistoryViewModel other(fresh);
        QVERIFY(other.snapshots()->rows().at(0).caption.endsWith(u"· 1 app"_s));
    }

    void theNewestComesFirst() {
        apply();
        QCOMPARE(rows().size(), 2);
        QCOMPARE(rows()[0].reason, u"Before Work"_s);
        QCOMPARE(rows()[1].reason, u"Before Kelvane"_s);
        QVERIFY(!rows()[0].isOriginal);
        QVERIFY(!rows()[0].isSameAsNow);
        QVERIFY(pane->hasPrevious());
    }

    void aRowTellsWhatRestoringItWouldChange() {
        apply();
        QCOMPARE(rows()[0].changes, u"Comes back: b\nLeaves: c"_s);
        world->setDock({u"b"_s, u"a"_s});
        QVERIFY(refreshAndWait(*model));
        QCOMPARE(rows()[0].changes, u"Moves: a, b"_s);
        QVERIFY(!rows()[0].isSameAsNow);
    }

    void namesOfWhatIsGoneComeFromItsUsage() {
        UsageStore usage(world->paths().usage());
        usage.addSeconds(10, u"org.example.gone"_s, u"Gone"_s, world->clock.now());
        usage.save(world->clock.now());
        world->setDock({u"gone"_s, u"a"_s});
        capture();
        AppModel fresh(world->services(), world->paths(), nullptr, nullptr);
        HistoryViewModel other(fresh);
        QCOMPARE(other.snapshots()->rows().at(0).names, u"Gone, a"_s);
    }

    void restorePutsTheDockBackAndSavesThePresentOneFirst() {
        apply();
        pane->restore(rows()[1].snapshotId);
        QVERIFY(model->isWorking());
        QVERIFY(waitForChange(*model));
        QCOMPARE(world->dock(), QStringList({u"a"_s, u"b"_s}));
        QCOMPARE(rows()[0].reason, u"Before restoring"_s);
        QCOMPARE(rows()[0].names, u"c, a"_s);
    }

    void restorePreviousBringsTheEarlierDockBack() {
        apply();
        pane->restorePrevious();
        QVERIFY(waitForChange(*model));
        QCOMPARE(world->dock(), QStringList({u"a"_s, u"b"_s}));
    }

    void deletingNeverChangesTheDock() {
        apply();
        const int saves = world->preferences.saves;
        const QString id = rows()[0].snapshotId;
        pane->remove(id);
        QCOMPARE(rows().size(), 1);
        QCOMPARE(world->preferences.saves, saves);
        QCOMPARE(world->dock(), QStringList({u"c"_s, u"a"_s}));
        QVERIFY(!QFile::exists(world->paths().snapshots() + u'/' + id + u".plist"_s));
        QCOMPARE(world->snapshotStore(world->paths().snapshots()).all().size(), 1);
    }

    void theOriginalCannotBeDeleted() {
        pane->remove(rows()[0].snapshotId);
        QCOMPARE(rows().size(), 1);
    }

    void whatIsGoneIsNeitherRestoredNorDeleted() {
        pane->restore(u"nonsense"_s);
        pane->remove(u"nonsense"_s);
        QVERIFY(!model->isWorking());
        QCOMPARE(rows().size(), 1);
    }

    void withoutSnapshotsThePaneIsEmpty() {
        ModelWorld bare;
        AppModel fresh(bare.services(), bare.paths(), nullptr, nullptr);
        HistoryViewModel other(fresh);
        QVERIFY(other.isEmpty());
        QVERIFY(!other.hasPrevious());
    }

private:
    QList<SnapshotRow> rows() { return pane->snapshots()->rows(); }
    void capture() {
        world->snapshotStore(world->paths().snapshots()).capture(u"Before Work"_s, SnapshotStore::Mark::ordinary);
    }
    void apply() {
        model->applyActive(AppModel::Notify::failuresOnly);
        QVERIFY(waitForChange(*model));
        QCOMPARE(world->dock(), QStringList({u"c"_s, u"a"_s}));
    }

    std::optional<ModelWorld> world;
    std::optional<AppModel> model;
    std::optional<HistoryViewModel> pane;
    std::unique_ptr<QAbstractItemModelTester> tester;
};

QTEST_GUILESS_MAIN(HistoryViewModelTest)
#include "HistoryViewModelTest.moc"
