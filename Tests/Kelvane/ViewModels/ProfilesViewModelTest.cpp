#include "Kelvane/ViewModels/ProfilesViewModel.h"

#include "Support/ModelWorld.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace DockCore;
using namespace Kelvane;
using namespace Fakes;
using namespace Qt::StringLiterals;

class ProfilesViewModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        world.emplace();
        model.emplace(world->services(), world->paths(), nullptr, nullptr);
        pane.emplace(*model);
        tester = std::make_unique<QAbstractItemModelTester>(pane->profiles(),
                                                            QAbstractItemModelTester::FailureReportingMode::QtTest);
    }
    void cleanup() {
        tester.reset();
        pane.reset();
        model.reset();
        world.reset();
    }

    void theActiveProfileIsSelectedAtFirst() {
        QCOMPARE(pane->selectedRow(), 0);
        QVERIFY(pane->profiles()->rows()[0].isActive);
        QCOMPARE(pane->editor()->name(), model->activeProfile().name);
    }

    void aNewProfileIsSelectedAndNotActive() {
        QSignalSpy made(&*pane, &ProfilesViewModel::profileMade);
        pane->add();
        QCOMPARE(made.count(), 1);
        QCOMPARE(pane->editor()->name(), u"New Profile"_s);
        QCOMPARE(pane->selectedRow(), static_cast<int>(model->profiles().size()) - 1);
        QVERIFY(!pane->editor()->isActive());
        QCOMPARE(world->profileStore().profiles.last().name, u"New Profile"_s);
    }

    void aDuplicateIsSelected() {
        pane->selectRow(1);
        const QString name = pane->editor()->name();
        pane->duplicateSelected();
        QCOMPARE(pane->editor()->name(), name + u" Copy"_s);
        QCOMPARE(pane->selectedRow(), static_cast<int>(model->profiles().size()) - 1);
    }

    void removingSelectsTheOneThatFollows() {
        pane->selectRow(1);
        const QString next = model->profiles()[2].name;
        pane->removeSelected();
        QCOMPARE(pane->selectedRow(), 1);
        QCOMPARE(pane->editor()->name(), next);
    }

    void removingTheLastRowSelectsTheOneAbove() {
        const int last = static_cast<int>(model->profiles().size()) - 1;
        pane->selectRow(last);
        pane->removeSelected();
        QCOMPARE(pane->selectedRow(), last - 1);
        QCOMPARE(pane->editor()->name(), model->profiles().last().name);
    }

    void theOnlyProfileStays() {
        while (model->profiles().size() > 1)
            pane->removeSelected();
        QVERIFY(pane->editor()->isOnly());
        const QList<Profile> before = model->profiles();
        pane->removeSelected();
        QCOMPARE(model->profiles(), before);
        QCOMPARE(world->dock(), QStringList({u"a"_s, u"b"_s}));
    }

    void removingNeverTouchesTheDock() {
        pane->removeSelected();
        QVERIFY(!model->isWorking());
        QCOMPARE(world->preferences.saves, 0);
    }

    void aProfileRemovedElsewhereIsNoLongerSelected() {
        pane->selectRow(2);
        model->removeProfile(model->profiles()[2].id);
        QCOMPARE(pane->selectedRow(), 0);
        QCOMPARE(pane->editor()->name(), model->activeProfile().name);
    }

    void activatingElsewhereMovesTheMarkOnly() {
        pane->selectRow(2);
        model->activate(model->profiles()[1].id, AppModel::Apply::no);
        QVERIFY(!pane->profiles()->rows()[0].isActive);
        QVERIFY(pane->profiles()->rows()[1].isActive);
        QCOMPARE(pane->selectedRow(), 2);
        pane->selectActive();
        QCOMPARE(pane->selectedRow(), 1);
    }

    void equalAndEmptyNamesAreToldApart() {
        pane->selectRow(0);
        pane->editor()->setName(u"Work"_s);
        pane->selectRow(1);
        pane->editor()->setName(u"Work"_s);
        pane->selectRow(2);
        pane->editor()->setName(u""_s);
        pane->selectRow(3);
        pane->editor()->setName(u"  "_s);
        const QList<ProfileListRow>& rows = pane->profiles()->rows();
        QCOMPARE(rows[0].name + u'/' + rows[0].ordinal, u"Work/"_s);
        QCOMPARE(rows[1].name + u'/' + rows[1].ordinal, u"Work/2"_s);
        QCOMPARE(rows[1].title, u"Work 2"_s);
        QCOMPARE(rows[2].name + u'/' + rows[2].ordinal, u"Untitled/"_s);
        QCOMPARE(rows[3].name + u'/' + rows[3].ordinal, u"Untitled/2"_s);
        // What is stored stays as typed.
        QCOMPARE(world->profileStore().profiles[2].name, QString());
    }

    void unknownProfilesAreNotSelected() {
        pane->select(uuidString(QUuid::createUuid()));
        pane->select(u"nonsense"_s);
        pane->selectRow(99);
        QCOMPARE(pane->selectedRow(), 0);
    }

private:
    std::optional<ModelWorld> world;
    std::optional<AppModel> model;
    std::optional<ProfilesViewModel> pane;
    std::unique_ptr<QAbstractItemModelTester> tester;
};

QTEST_GUILESS_MAIN(ProfilesViewModelTest)
#include "ProfilesViewModelTest.moc"
