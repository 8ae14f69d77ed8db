#include "Kelvane/ViewModels/ProfileEditor.h"

#include "DockCore/AppCatalog.h"
#include "DockCore/Storage/Paths.h"
#include "Support/ModelWorld.h"

#include <QAbstractItemModelTester>
#include <QFile>
#include <QTest>

using namespace DockCore;
using namespace Kelvane;
using namespace Fakes;
using namespace Qt::StringLiterals;

class ProfileEditorTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        world.emplace();
        model.emplace(world->services(), world->paths(), nullptr, nullptr);
        pinActive(*model, {u"a"_s, u"b"_s, u"c"_s});
        editor.emplace(*model);
        testers.emplace_back(std::make_unique<QAbstractItemModelTester>(
            editor->pinned(), QAbstractItemModelTester::FailureReportingMode::QtTest));
        testers.emplace_back(std::make_unique<QAbstractItemModelTester>(
            editor->excluded(), QAbstractItemModelTester::FailureReportingMode::QtTest));
    }
    void cleanup() {
        testers.clear();
        editor.reset();
        model.reset();
        world.reset();
    }

    void eachEditIsSavedAtOnce() {
        editor->setName(u"Focus"_s);
        editor->setSymbol(u"book"_s);
        editor->setUsageSlots(5);
        editor->setWindowIndex(1);
        const ProfileStore stored = world->profileStore();
        QCOMPARE(stored.active().name, u"Focus"_s);
        QCOMPARE(stored.active().symbol, u"book"_s);
        QCOMPARE(stored.active().adaptiveSlots, 5);
        QCOMPARE(stored.active().window, UsageWindow::month);
    }

    void editingKeepsTheSpacerChoice() {
        const bool before = model->activeProfile().separatePinned;
        editor->setName(u"Focus"_s);
        editor->add(ProfileEditor::PickTarget::excluded, ModelWorld::bundleID(u"e"_s));
        QCOMPARE(model->activeProfile().separatePinned, before);
    }

    void editingAProfileThatIsNotActiveLeavesTheSuggestion() {
        const Profile other = model->addProfile();
        QVERIFY(refreshAndWait(*model));
        const QList<DockTile> suggestion = model->proposal();
        editor->setProfile(other.id);
        QSignalSpy spy(&*model, &AppModel::proposalChanged);
        editor->add(ProfileEditor::PickTarget::pinned, ModelWorld::bundleID(u"e"_s));
        editor->setName(u"Other"_s);
        QCOMPARE(world->profileStore().profiles.last().pinned, ModelWorld::bundleIDs({u"e"_s}));
        QCOMPARE(spy.count(), 0);
        QCOMPARE(model->proposal(), suggestion);
        QCOMPARE(world->dock(), QStringList({u"a"_s, u"b"_s}));
    }

    void theSpacerIsNoAppOfADensePreview() {
        QStringList words;
        for (int i = 0; i < 26; ++i) {
            words += u"app%1"_s.arg(i);
            world->install(ModelWorld::bundleID(words.last()), words.last());
        }
        world->opened(u"/Applications/a.app"_s, {world->clock.now()});
        world->opened(u"/Applications/b.app"_s, {world->clock.now()});
        QVERIFY(refreshAndWait(*model));
        Profile profile = model->activeProfile();
        profile.pinned = ModelWorld::bundleIDs(words);
        profile.adaptiveSlots = 1;
        profile.separatePinned = true;
        model->update(profile);
        QCOMPARE(editor->preview()->count(), 26 + 1 + 1);
        QVERIFY(!editor->isPreviewDense());
        profile.adaptiveSlots = 2;
        model->update(profile);
        QCOMPARE(editor->preview()->count(), 26 + 1 + 2);
        QVERIFY(editor->isPreviewDense());
    }

    void aProfileWithoutAppsIsNamedInItsPreview() {
        pinActive(*model, {});
        QCOMPARE(editor->preview()->count(), 0);
        QCOMPARE(editor->emptyText(), u"Work has no apps yet. Add some in Profiles."_s);
    }

    void usageSlots_data() {
        QTest::addColumn<int>("wanted");
        QTest::addColumn<int>("kept");
        QTest::addColumn<QString>("text");
        QTest::newRow("none at all") << 0 << 0 << u"None"_s;
        QTest::newRow("one") << 1 << 1 << u"1"_s;
        QTest::newRow("the most") << 24 << 24 << u"24"_s;
        QTest::newRow("more than the most") << 25 << 24 << u"24"_s;
        QTest::newRow("fewer than none") << -1 << 0 << u"None"_s;
    }
    void usageSlots() {
        QFETCH(int, wanted);
        QFETCH(int, kept);
        editor->setUsageSlots(wanted);
        QCOMPARE(editor->usageSlots(), kept);
        QTEST(editor->usageSlotsText(), "text");
    }

    void move_data() {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<QString>("order");
        QTest::newRow("one place up") << 2 << 1 << u"a c b"_s;
        QTest::newRow("one place down") << 0 << 1 << u"b a c"_s;
        QTest::newRow("dragged to the end") << 0 << 2 << u"b c a"_s;
        QTest::newRow("dragged to the front") << 2 << 0 << u"c a b"_s;
        QTest::newRow("above the first stays") << 0 << -1 << u"a b c"_s;
        QTest::newRow("below the last stays") << 2 << 3 << u"a b c"_s;
    }
    void move() {
        QFETCH(int, from);
        QFETCH(int, to);
        QFETCH(QString, order);
        editor->move(from, to);
        QCOMPARE(model->activeProfile().pinned, ModelWorld::bundleIDs(order.split(u' ')));
        QCOMPARE(names(*editor->pinned()), order);
    }

    void onlyTheEndsOfTheListAreMarked() {
        const QList<AppListRow>& rows = editor->pinned()->rows();
        QVERIFY(rows[0].isFirst && !rows[0].isLast);
        QVERIFY(!rows[1].isFirst && !rows[1].isLast);
        QVERIFY(!rows[2].isFirst && rows[2].isLast);
    }

    void aRemovedApplicationComesBackWhereItWas() {
        editor->removePinned(1);
        QCOMPARE(names(*editor->pinned()), u"a c"_s);
        QCOMPARE(editor->undoText(), u"Undo Remove “b”"_s);
        editor->undoRemove();
        QCOMPARE(names(*editor->pinned()), u"a b c"_s);
        QCOMPARE(editor->undoText(), QString());
    }

    void removalsComeBackLastFirst() {
        editor->removePinned(0);
        editor->removePinned(0);
        editor->undoRemove();
        QCOMPARE(names(*editor->pinned()), u"b c"_s);
        editor->undoRemove();
        QCOMPARE(names(*editor->pinned()), u"a b c"_s);
    }

    void aRemovalOfTheExcludedListComesBackThere() {
        editor->add(ProfileEditor::PickTarget::excluded, ModelWorld::bundleID(u"e"_s));
        editor->removeExcluded(0);
        editor->undoRemove();
        QCOMPARE(names(*editor->excluded()), u"e"_s);
        QCOMPARE(names(*editor->pinned()), u"a b c"_s);
    }

    void whatIsAddedAgainByHandDoesNotComeBackTwice() {
        editor->removePinned(1);
        editor->add(ProfileEditor::PickTarget::pinned, ModelWorld::bundleID(u"b"_s));
        QCOMPARE(editor->undoText(), QString());
        editor->undoRemove();
        QCOMPARE(names(*editor->pinned()), u"a c b"_s);
    }

    void aRemovalBelongsToItsProfile() {
        const Profile other = model->addProfile();
        editor->removePinned(1);
        editor->setProfile(other.id);
        QCOMPARE(editor->undoText(), QString());
        editor->undoRemove();
        QVERIFY(editor->profile().pinned.isEmpty());
        editor->setProfile(model->activeProfile().id);
        editor->undoRemove();
        QCOMPARE(names(*editor->pinned()), u"a b c"_s);
    }

    void rowsThatDoNotExistAreNotRemoved() {
        editor->removePinned(3);
        editor->removePinned(-1);
        editor->removeExcluded(0);
        QCOMPARE(names(*editor->pinned()), u"a b c"_s);
        QCOMPARE(editor->undoText(), QString());
    }

    void anUninstalledApplicationStaysAndIsMarked() {
        Profile profile = model->activeProfile();
        profile.pinned.append(u"org.example.gone"_s);
        model->update(profile);
        QCOMPARE(editor->pinned()->count(), 4);
        QVERIFY(!editor->pinned()->rows()[3].isInstalled);
        QVERIFY(editor->pinned()->rows()[0].isInstalled);
        QCOMPARE(editor->pinned()->rows()[3].name, u"org.example.gone"_s);
    }

    void anUninstalledApplicationHasTheNameOfItsUsage() {
        UsageStore usage(world->paths().usage());
        usage.addSeconds(10, u"org.example.gone"_s, u"Gone"_s, world->clock.now());
        usage.save(world->clock.now());
        AppModel fresh(world->services(), world->paths(), nullptr, nullptr);
        pinActive(fresh, {u"gone"_s});
        ProfileEditor other(fresh);
        QCOMPARE(other.pinned()->rows()[0].name, u"Gone"_s);
    }

    void applyingSavesAndActivatesFirst() {
        const Profile other = model->addProfile();
        editor->setProfile(other.id);
        editor->setUsageSlots(0);
        editor->add(ProfileEditor::PickTarget::pinned, ModelWorld::bundleID(u"e"_s));
        editor->applyToDock();
        QCOMPARE(model->activeProfile().id, other.id);
        QVERIFY(QTest::qWaitFor([this] { return world->dock() == QStringList{u"e"_s}; }));
        QVERIFY(waitForChange(*model) || !model->isWorking());
    }

    void makingActiveLeavesTheDock() {
        const Profile other = model->addProfile();
        editor->setProfile(other.id);
        QVERIFY(!editor->isActive());
        editor->makeActive();
        QVERIFY(editor->isActive());
        QCOMPARE(world->profileStore().settings.activeProfileID, std::optional(other.id));
        QCOMPARE(world->dock(), QStringList({u"a"_s, u"b"_s}));
        QVERIFY(!model->isWorking());
    }

private:
    static QString names(const RowListOf<AppListRow>& list) {
        QStringList result;
        for (const AppListRow& row : list.rows())
            result += row.name;
        return result.join(u' ');
    }

    std::optional<ModelWorld> world;
    std::optional<AppModel> model;
    std::optional<ProfileEditor> editor;
    std::vector<std::unique_ptr<QAbstractItemModelTester>> testers;
};

QTEST_GUILESS_MAIN(ProfileEditorTest)
#include "ProfileEditorTest.moc"
