#include "Window/ListScroll.h"

#include <QQuickItem>
#include <QQuickWindow>

using namespace Qt::StringLiterals;

namespace {

constexpr qreal twoRows = 112;

QQuickItem* find(QQuickItem* item, const QString& name) {
    if (item->objectName() == name) {
        return item;
    }
    for (QQuickItem* child : item->childItems()) {
        if (QQuickItem* found = find(child, name)) {
            return found;
        }
    }
    return nullptr;
}

void scroll(QQuickWindow& window, const QString& name) {
    QQuickItem* list = find(window.contentItem(), name);
    if (list == nullptr) {
        qFatal("the window has no list to scroll");
    }
    const auto number = [list](const char* property) { return list->property(property).toReal(); };
    const qreal end = number("originY") + number("contentHeight") - list->height();
    list->setProperty("contentY", qMin(number("contentY") + twoRows, end));
}

} // namespace

Subject::Step ListScroll::step(QQuickWindow& window, const QString& list) {
    const auto onwards = [&window, list] { scroll(window, list); };
    return {u"scroll"_s, onwards, onwards};
}
