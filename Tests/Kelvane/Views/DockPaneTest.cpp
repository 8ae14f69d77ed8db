#include "WindowTest.h"

#include "Kelvane/Views/WindowFrame.h"

#include <QFile>

#include <algorithm>

using namespace DockCore;
using namespace Kelvane;
using namespace Fakes;
using namespace Qt::StringLiterals;

namespace {
QList<QQuickItem*> tilesIn(const QQuickItem& item) {
    QList<QQuickItem*> tiles;
    for (QQuickItem* child : item.childItems()) {
        if (child->property("iconSource").isValid())
            tiles.append(child);
        else
            tiles += tilesIn(*child);
    }
    return tiles;
}
} // namespace

/// The window and the Dock pane, on a model with fakes, as a person uses them.
class DockPaneTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyTileIsThereAndSaysWhatBecomesOfIt() {
        WindowWorld mac;
        pinActive(*mac.model, {u"Calendar"_s, u"Mail"_s, u"Terminal"_s});
        mac.open(Pane::dock);
        QVERIFY(mac.find(u"Maps, leaving"_s));
        QVERIFY(mac.find(u"Mail"_s));
        QVERIFY(mac.find(u"Calendar, moved forward, always in the Dock"_s));
        QVERIFY(mac.find(u"Mail, moved back, always in the Dock"_s));
        QVERIFY(mac.find(u"Terminal, added, always in the Dock"_s));
        QVERIFY(mac.find(u"1 added"_s));
        QVERIFY(mac.find(u"6 leaving"_s));
        QVERIFY(mac.find(u"2 moved"_s));
    }

    void aClickAppliesAndTheButtonBecomesACheckMark() {
        WindowWorld mac;
        pinActive(*mac.model, {u"Mail"_s, u"Terminal"_s});
        mac.open(Pane::dock);
        mac.click(u"Apply to Dock"_s);
        QVERIFY(QTest::qWaitFor([&] { return mac.find(u"Matches your Dock"_s) != nullptr; }));
        QCOMPARE(mac.world.dock(), (QStringList{u"Mail"_s, u"Terminal"_s}));
        QVERIFY(!mac.find(u"Matches your Dock"_s)->isEnabled());
        QVERIFY(QTest::qWaitFor([&] { return mac.find(u"Dock updated for Work."_s) != nullptr; }));
    }

    void whatLeavesFadesAndIsGone() {
        WindowWorld mac;
        pinActive(*mac.model, {u"Mail"_s, u"Terminal"_s});
        mac.open(Pane::dock);
        const auto tiles = [&mac] { return tilesIn(*mac.quick()->contentItem()); };
        QCOMPARE(tiles().size(), 8 + 2);
        int fading = 0;
        connect(mac.quick(), &QQuickWindow::afterAnimating, this, [&] {
            fading += static_cast<int>(std::ranges::count_if(tiles(), [](const QQuickItem* tile) {
                return tile->property("name") == u"Maps"_s && tile->opacity() > 0 && tile->opacity() < 1;
            }));
        });
        mac.click(u"Apply to Dock"_s);
        QVERIFY(mac.waitForChange());
        QTRY_COMPARE(tiles().size(), 2 + 2);
        QVERIFY(fading > 0);
    }

    void theButtonCannotBePressedTwiceWhileAChangeRuns() {
        WindowWorld mac;
        Gate gate;
        mac.world.holdRestarts(gate);
        pinActive(*mac.model, {u"Mail"_s, u"Terminal"_s});
        mac.open(Pane::dock);
        mac.click(u"Apply to Dock"_s);
        QTRY_VERIFY(mac.find(u"Updating Dock…"_s) != nullptr);
        for (int nth = 0; QQuickItem* item = mac.find(u"Updating Dock…"_s, nth); ++nth) {
            if (item->inherits("QQuickButton"))
                QVERIFY(!item->isEnabled());
        }
        QVERIFY(!mac.find(u"Apply to Dock"_s));
        gate.open();
        QVERIFY(mac.waitForChange());
    }

    void choosingAProfileByKeyboardChangesTheSuggestion() {
        WindowWorld mac;
        pinActive(*mac.model, {u"Mail"_s});
        Profile other = mac.model->addProfile();
        other.name = u"Other"_s;
        other.pinned = ModelWorld::bundleIDs({u"Chess"_s});
        other.adaptiveSlots = 0;
        mac.model->update(other);
        mac.model->activate(mac.model->profiles().constFirst().id, AppModel::Apply::no);
        mac.open(Pane::dock);
        mac.tabTo(u"Profile"_s);
        mac.press(Qt::Key_Space);
        mac.press(Qt::Key_End);
        mac.press(Qt::Key_Return);
        QVERIFY(QTest::qWaitFor([&] { return mac.find(u"Suggested for Other"_s) != nullptr; }));
        QVERIFY(QTest::qWaitFor([&] { return mac.find(u"Chess, added, always in the Dock"_s) != nullptr; }));
        QCOMPARE(mac.model->activeProfile().name, u"Other"_s);
    }

    void editShowsTheProfilesPane() {
        WindowWorld mac;
        pinActive(*mac.model, {u"Mail"_s});
        mac.open(Pane::dock);
        mac.click(u"Edit Work"_s);
        QCOMPARE(mac.model->pane(), Pane::profiles);
    }

    void theSidebarShowsEachPane() {
        WindowWorld mac;
        mac.open(Pane::dock);
        for (const QString& pane : {u"Usage"_s, u"Profiles"_s, u"History"_s, u"Settings"_s, u"Dock"_s})
            mac.click(pane);
        QCOMPARE(mac.model->pane(), Pane::dock);
    }

    void becomingKeyAndClosingAreReported() {
        WindowWorld mac;
        mac.open(Pane::dock);
        QSignalSpy closing(&*mac.window, &MainWindow::closing);
        mac.window->close();
        QCOMPARE(closing.count(), 1);
        QVERIFY(!mac.window->isVisible());
        QSignalSpy key(&*mac.window, &MainWindow::becameKey);
        mac.window->show();
        QVERIFY(mac.window->isVisible());
        QVERIFY(QTest::qWaitFor([&] { return key.count() > 0; }));
    }

    void theFrameIsRememberedAndNeverTooSmall() {
        WindowWorld mac;
        WindowFrame::save(QRect(40, 30, 900, 600), mac.world.paths());
        mac.open(Pane::dock);
        QCOMPARE(mac.quick()->size(), QSize(900, 600));
        mac.quick()->resize(870, 590);
        mac.window->close();
        QCOMPARE(WindowFrame::load(mac.world.paths())->size(), QSize(870, 590));
        WindowFrame::save(QRect(40, 30, 100, 50), mac.world.paths());
        mac.window.reset();
        mac.show();
        QCOMPARE(mac.quick()->size(), QSize(860, 580));
    }

    void aFrameThatMakesNoSenseCountsAsNone_data() {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("no JSON") << QByteArray("{");
        QTest::newRow("a list") << QByteArray("[1, 2, 3, 4]");
        QTest::newRow("a number missing") << QByteArray(R"({"x": 1, "y": 1, "width": 900})");
        QTest::newRow("a text for a number") << QByteArray(R"({"x": 1, "y": 1, "width": "900", "height": 600})");
        QTest::newRow("no extent") << QByteArray(R"({"x": 1, "y": 1, "width": 0, "height": 600})");
        QTest::newRow("beyond every desktop")
            << QByteArray(R"({"x": 4000000000, "y": 1, "width": 900, "height": 600})");
    }
    void aFrameThatMakesNoSenseCountsAsNone() {
        QFETCH(QByteArray, content);
        World world;
        QFile file(world.paths().support() + u"/window.json"_s);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        QVERIFY(!WindowFrame::load(world.paths()));
    }

    void aWindowThatIsNotThereGivesNoPicture() {
        WindowWorld mac;
        mac.window.emplace(*mac.model, mac.desktop, mac.images);
        QVERIFY(!mac.window->grab());
    }
};

int main(int argc, char** argv) {
    return runWindowTest<DockPaneTest>(argc, argv);
}
#include "DockPaneTest.moc"
