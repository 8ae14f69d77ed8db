#include "WindowTest.h"

#include <QFont>

using namespace Kelvane;
using namespace Fakes;
using namespace Qt::StringLiterals;

namespace {

/// The part of an item that can be seen: what no ancestor clips away, in the window's coordinates.
QRectF seen(const QQuickItem& item) {
    QRectF rectangle = item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
    for (const QQuickItem* ancestor = item.parentItem(); ancestor != nullptr; ancestor = ancestor->parentItem()) {
        if (ancestor->clip() || ancestor->parentItem() == nullptr)
            rectangle &= ancestor->mapRectToScene(QRectF(0, 0, ancestor->width(), ancestor->height()));
    }
    return rectangle;
}

void collectTexts(QQuickItem& item, QList<QQuickItem*>& texts) {
    if (!item.isVisible() || item.opacity() == 0)
        return;
    if (item.inherits("QQuickText") && !item.property("text").toString().isEmpty())
        texts.append(&item);
    for (QQuickItem* child : item.childItems())
        collectTexts(*child, texts);
}

} // namespace

/// The smallest window with text at twice its size: nothing lies over anything else, and the keyboard reaches all of
/// it.
class LargeTextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        QFont font = QGuiApplication::font();
        font.setPixelSize(26);
        QGuiApplication::setFont(font);
        mac.emplace();
    }
    void cleanup() { mac.reset(); }

    void whatTakesTheKeysIsInSight_data() { addPlaces(); }
    void whatTakesTheKeysIsInSight() {
        show();
        for (int i = 0; i < 80; ++i) {
            mac->press(Qt::Key_Tab);
            const QQuickItem* item = mac->quick()->activeFocusItem();
            QVERIFY(item != nullptr);
            const QRectF visible = seen(*item);
            QVERIFY2(
                visible.height() >= std::min(item->height(), 40.0) - 1,
                qPrintable(
                    u"%1: %2 of %3, seen %4"_s.arg(mac->focused()).arg(i).arg(item->height()).arg(visible.height())));
        }
    }

    void noTextLiesOverAnother_data() { addPlaces(); }
    void noTextLiesOverAnother() {
        show();
        QList<QQuickItem*> texts;
        collectTexts(*mac->quick()->contentItem(), texts);
        QVERIFY(texts.size() > 3);
        for (qsizetype i = 0; i < texts.size(); ++i) {
            for (qsizetype j = i + 1; j < texts.size(); ++j) {
                const QRectF common = seen(*texts[i]) & seen(*texts[j]);
                // Lines of text may touch, and letters leave their box a little.
                QVERIFY2(common.width() < 2 || common.height() < 4,
                         qPrintable(texts[i]->property("text").toString() + u" / "_s +
                                    texts[j]->property("text").toString()));
            }
        }
    }

    void thePageKeysTurnPages() {
        mac->model->setOnboardingStep(0);
        mac->show();
        mac->quick()->resize(860, 580);
        QTest::qWait(300);
        QQuickItem* last = mac->find(u"Private by design"_s);
        QVERIFY(last == nullptr || seen(*last).isEmpty());
        mac->press(Qt::Key_PageDown);
        QTRY_VERIFY(mac->find(u"Private by design"_s) != nullptr);
        QTRY_VERIFY(!seen(*mac->find(u"Private by design"_s)).isEmpty());
        mac->press(Qt::Key_PageUp);
        QTRY_VERIFY(!seen(*mac->find(u"A Dock that keeps up with you"_s)).isEmpty());
    }

private:
    static void addPlaces() {
        QTest::addColumn<int>("step");
        QTest::addColumn<Pane>("pane");
        QTest::newRow("Dock") << -1 << Pane::dock;
        QTest::newRow("Usage") << -1 << Pane::usage;
        QTest::newRow("Profiles") << -1 << Pane::profiles;
        QTest::newRow("History") << -1 << Pane::history;
        QTest::newRow("Settings") << -1 << Pane::settings;
        for (int step = 0; step < 3; ++step)
            QTest::addRow("first run, step %d", step + 1) << step << Pane::dock;
    }
    void show() {
        QFETCH(int, step);
        QFETCH(Pane, pane);
        pinActive(*mac->model, {u"Books"_s, u"Chess"_s, u"Mail"_s});
        mac->model->applyActive(AppModel::Notify::failuresOnly);
        QVERIFY(mac->waitForChange());
        if (step >= 0) {
            mac->model->setOnboardingStep(step);
            mac->show();
        } else {
            mac->open(pane);
        }
        mac->quick()->resize(860, 580);
        QTest::qWait(300);
    }

    std::optional<WindowWorld> mac;
};

int main(int argc, char** argv) {
    return runWindowTest<LargeTextTest>(argc, argv);
}
#include "LargeTextTest.moc"
