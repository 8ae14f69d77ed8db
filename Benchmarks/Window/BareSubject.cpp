#include "Window/ListScroll.h"
#include "Window/Subject.h"

#include <QQmlApplicationEngine>
#include <QQuickWindow>

using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 12;
constexpr int tiles = 60;
constexpr int rankedRows = 500;

class BareSubject : public Subject {
public:
    void open() override {
        m_engine.addImportPath(u":/qt/qml"_s);
        m_engine.load(QUrl(u"qrc:/qt/qml/Bare/Window/BareWindow.qml"_s));
        window().show();
    }

    QQuickWindow& window() override {
        auto* window = qobject_cast<QQuickWindow*>(m_engine.rootObjects().value(0));
        if (window == nullptr) {
            qFatal("there is no bare window");
        }
        return *window;
    }

    bool isFilled() override { return true; }

    QList<Step> steps() override {
        QList<Step> steps;
        // Another number of rows makes all of them anew.
        for (int round = 0; round < rounds; ++round) {
            for (const auto& [kind, rows] : {std::pair(u"dock"_s, tiles), std::pair(u"usage"_s, rankedRows)}) {
                steps.append({kind, [this, rows, round] { window().setProperty("rows", rows + round % 2); }});
            }
            steps.append({u"profile"_s, [this, round] { window().setProperty("rows", tiles + round % 2); }});
        }
        steps.append({u"usage"_s, [this] { window().setProperty("rows", rankedRows); }});
        steps.append(ListScroll::step(window(), u"list"_s));
        return steps;
    }

private:
    QQmlApplicationEngine m_engine;
};

} // namespace

std::unique_ptr<Subject> Subject::bare() {
    return std::make_unique<BareSubject>();
}
