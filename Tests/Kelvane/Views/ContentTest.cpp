#include "WindowTest.h"

#include <QSignalSpy>

using namespace Kelvane;
using namespace Fakes;
using namespace Qt::StringLiterals;

/// How one pane follows another in the real window.
class ContentTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        mac.emplace();
        mac->open(Pane::dock);
        content = mac->quick()->findChild<QQuickItem*>(u"content"_s);
        QVERIFY(content != nullptr);
        turned.emplace(content, SIGNAL(turned()));
    }
    void cleanup() {
        turned.reset();
        mac.reset();
    }

    void thePaneBeforeStaysUntilTheNextIsMade() {
        const QPointer<QQuickItem> before = shown();
        mac->model->setPane(Pane::history);
        QVERIFY(shown() == before);
        QCOMPARE(before->mapToScene(QPointF()).x(), content->mapToScene(QPointF()).x());
        QVERIFY(turned->wait());
        QVERIFY(shown() != before);
        QCOMPARE(shown()->mapToScene(QPointF()).x(), content->mapToScene(QPointF()).x());
        QTRY_VERIFY(before.isNull());
        QVERIFY(mac->find(u"Saved Docks"_s) != nullptr);
    }

    void whoeverComesBackAtOnceHasNotLeft() {
        const QQuickItem* before = shown();
        mac->model->setPane(Pane::history);
        mac->model->setPane(Pane::dock);
        QVERIFY(shown() == before);
        // What was begun was given up: the next turn is that of the next choice.
        mac->model->setPane(Pane::settings);
        QVERIFY(turned->wait());
        QVERIFY(mac->find(u"Open at login"_s) != nullptr);
        QCOMPARE(turned->count(), 1);
    }

    void ofManyChoicesTheLastShows() {
        for (const Pane pane : {Pane::usage, Pane::profiles, Pane::history, Pane::settings})
            mac->model->setPane(pane);
        QVERIFY(turned->wait());
        QCOMPARE(turned->count(), 1);
        QVERIFY(mac->find(u"Open at login"_s) != nullptr);
    }

    void theKeysGoToWhatShows() {
        mac->tabTo(u"Usage"_s);
        mac->model->setPane(Pane::profiles);
        QVERIFY(turned->wait());
        // Who chose with the keys stays in the list of panes, and walks on into the new one.
        QCOMPARE(mac->focused(), u"Usage"_s);
        mac->tabTo(u"New profile"_s);
    }

    void aTileThatWasThereFromTheStartDoesNotArrive() {
        mac->model->setPane(Pane::settings);
        QVERIFY(turned->wait());
        mac->model->setPane(Pane::dock);
        QVERIFY(turned->wait());
        const QList<double> there = presences(*shown());
        QVERIFY(there.size() >= mac->model->current().size());
        QCOMPARE(there.count(1), there.size());
    }

private:
    QQuickItem* shown() const { return content->property("item").value<QQuickItem*>(); }

    /// How much of each tile below an item is there yet.
    static QList<double> presences(const QQuickItem& item) {
        QList<double> found;
        for (const QQuickItem* child : item.childItems()) {
            if (const QVariant presence = child->property("presence"); presence.isValid())
                found += presence.toDouble();
            found += presences(*child);
        }
        return found;
    }

    std::optional<WindowWorld> mac;
    QQuickItem* content = nullptr;
    std::optional<QSignalSpy> turned;
};

int main(int argc, char** argv) {
    return runWindowTest<ContentTest>(argc, argv);
}

#include "ContentTest.moc"
