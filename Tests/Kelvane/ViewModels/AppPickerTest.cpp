#include "Kelvane/ViewModels/AppPicker.h"

#include "DockCore/AppCatalog.h"
#include "DockCore/Storage/Paths.h"
#include "Support/ModelWorld.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace DockCore;
using namespace Kelvane;
using namespace Fakes;
using namespace Qt::StringLiterals;

class AppPickerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        world.emplace();
        world->install(u"org.example.resume"_s, u"Résumé Builder"_s);
        UsageStore usage(world->paths().usage());
        usage.addSeconds(600, ModelWorld::bundleID(u"d"_s), {}, world->clock.now());
        usage.addSeconds(1200, ModelWorld::bundleID(u"b"_s), {}, world->clock.now());
        usage.save(world->clock.now());
        model.emplace(world->services(), world->paths(), nullptr, nullptr);
        pinActive(*model, {u"a"_s, u"b"_s});
        QVERIFY(refreshAndWait(*model));
        editor.emplace(*model);
        picker.emplace(*model, *editor);
        tester = std::make_unique<QAbstractItemModelTester>(picker->apps(),
                                                            QAbstractItemModelTester::FailureReportingMode::QtTest);
    }
    void cleanup() {
        tester.reset();
        picker.reset();
        editor.reset();
        model.reset();
        world.reset();
    }

    void theMostUsedComeFirstThenAllByName() {
        picker->openForPinned();
        QCOMPARE(listed(), QStringList({u"2 most used: b+ d"_s, u"All apps: a+ b+ c d e Résumé Builder"_s}));
    }

    void theMarksAreThoseOfTheList() {
        picker->openForExcluded();
        QCOMPARE(listed(), QStringList({u"2 most used: b d"_s, u"All apps: a b c d e Résumé Builder"_s}));
    }

    void search_data() {
        QTest::addColumn<QString>("search");
        QTest::addColumn<QString>("found");
        QTest::newRow("part of a name") << u"build"_s << u"All apps: Résumé Builder"_s;
        QTest::newRow("case does not count") << u"BUILD"_s << u"All apps: Résumé Builder"_s;
        QTest::newRow("accents do not count") << u"resume"_s << u"All apps: Résumé Builder"_s;
        QTest::newRow("typed accents do not hinder") << u"résumé"_s << u"All apps: Résumé Builder"_s;
        QTest::newRow("words in any order") << u"builder res"_s << u"All apps: Résumé Builder"_s;
        QTest::newRow("blanks around it do not count") << u"  c "_s << u"All apps: c"_s;
        QTest::newRow("a most used one is listed once, in a section of its own")
            << u"d"_s << u"1 most used: d|All apps: Résumé Builder"_s;
        QTest::newRow("nothing matches") << u"zzz"_s << u""_s;
    }
    void search() {
        QFETCH(QString, search);
        picker->openForPinned();
        picker->setSearch(search);
        QTEST(listed().join(u'|'), "found");
        QCOMPARE(picker->isEmpty(), listed().isEmpty());
    }

    void openingBeginsWithoutASearch() {
        picker->setSearch(u"zzz"_s);
        picker->openForPinned();
        QCOMPARE(picker->search(), QString());
        QVERIFY(!picker->isEmpty());
    }

    void aChosenAppIsAppendedAndMarked() {
        picker->openForPinned();
        picker->setSearch(u"c"_s);
        picker->add(0);
        QCOMPARE(model->activeProfile().pinned, ModelWorld::bundleIDs({u"a"_s, u"b"_s, u"c"_s}));
        QCOMPARE(listed(), QStringList{u"All apps: c+"_s});
    }

    void anAppThatIsThereIsNotAddedAgain() {
        picker->openForPinned();
        picker->add(0);
        QCOMPARE(model->activeProfile().pinned, ModelWorld::bundleIDs({u"a"_s, u"b"_s}));
    }

    void theExcludedListIsFilledOnItsOwn() {
        picker->openForExcluded();
        picker->add(0);
        QCOMPARE(model->activeProfile().excluded, ModelWorld::bundleIDs({u"b"_s}));
        QCOMPARE(model->activeProfile().pinned, ModelWorld::bundleIDs({u"a"_s, u"b"_s}));
    }

    void rowsThatDoNotExistAddNothing() {
        picker->openForPinned();
        picker->add(-1);
        picker->add(999);
        QCOMPARE(model->activeProfile().pinned.size(), 2);
    }

    void anyBundleCanBeChosen() {
        picker->openForPinned();
        // A profile from elsewhere may have named it before it was there.
        QVERIFY(!model->catalog().isInstalled(u"org.example.odd"_s));
        world->bundles.add(u"/Users/x/Tools/Odd.app"_s, u"org.example.odd"_s, u"Odd"_s);
        picker->addBundle(QUrl(u"file:///Users/x/Tools/Odd.app/"_s));
        QCOMPARE(model->activeProfile().pinned.last(), u"org.example.odd"_s);
        QVERIFY(model->catalog().isInstalled(u"org.example.odd"_s));
        QCOMPARE(world->bundles.remembered, QStringList{u"/Users/x/Tools/Odd.app"_s});
        QCOMPARE(picker->problem(), QString());
    }

    void whatIsNoAppIsToldAndNotAdded_data() {
        QTest::addColumn<QUrl>("url");
        QTest::addColumn<QString>("problem");
        QTest::newRow("a folder") << QUrl(u"file:///Users/x/Tools"_s) << u"“Tools” is not an app."_s;
        QTest::newRow("a bundle without an identifier")
            << QUrl(u"file:///Users/x/Bare.app"_s) << u"“Bare.app” is not an app."_s;
        QTest::newRow("nothing there") << QUrl(u"file:///Users/x/None.app"_s) << u"“None.app” is not an app."_s;
    }
    void whatIsNoAppIsToldAndNotAdded() {
        QFETCH(QUrl, url);
        world->bundles.add(u"/Users/x/Bare.app"_s, {}, u"Bare"_s);
        picker->openForPinned();
        picker->addBundle(url);
        QTEST(picker->problem(), "problem");
        QCOMPARE(model->activeProfile().pinned.size(), 2);
        picker->openForPinned();
        QCOMPARE(picker->problem(), QString());
    }

    void thePanelBeginsAtTheApplications() {
        QCOMPARE(picker->applicationsFolder().toLocalFile(), u"/Applications"_s);
        world->folders.listing.clear();
        QCOMPARE(picker->applicationsFolder().toLocalFile(), u"/Applications"_s);
        world->folders.listing.insert(u"/Users/x/Applications"_s, {u"/Users/x/Applications/Mail.app"_s});
        QCOMPARE(picker->applicationsFolder().toLocalFile(), u"/Users/x/Applications"_s);
    }

private:
    /// A line a section; what is already in the list has a "+".
    QStringList listed() {
        QStringList lines;
        QString section;
        for (const AppPickerRow& row : picker->apps()->rows()) {
            if (row.section != section) {
                section = row.section;
                lines += section + u':';
            }
            lines.last() += u' ' + row.name + (row.isAdded ? u"+"_s : QString());
        }
        return lines;
    }

    std::optional<ModelWorld> world;
    std::optional<AppModel> model;
    std::optional<ProfileEditor> editor;
    std::optional<AppPicker> picker;
    std::unique_ptr<QAbstractItemModelTester> tester;
};

QTEST_GUILESS_MAIN(AppPickerTest)
#include "AppPickerTest.moc"
