#include "Kelvane/ViewModels/Appearance.h"

#include <QEvent>
#include <QFont>
#include <QFontInfo>
#include <QGuiApplication>
#include <QPalette>
#include <QPointer>

#include <algorithm>

namespace Kelvane {

Appearance::Appearance(QObject* parent)
    : QObject(parent) {
    qGuiApp->installEventFilter(this);
}

Appearance& Appearance::shared() {
    static QPointer<Appearance> appearance;
    if (!appearance)
        appearance = new Appearance(qGuiApp);
    return *appearance;
}

bool Appearance::isDark() const {
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
}

QString Appearance::family() const {
    return QGuiApplication::font().family();
}

qreal Appearance::textScale() const {
    return std::max(1.0, QFontInfo(QGuiApplication::font()).pixelSize() / static_cast<qreal>(bodySize));
}

bool Appearance::reducedMotion() const {
    return qGuiApp->property("reducedMotion").toBool();
}

bool Appearance::eventFilter(QObject* watched, QEvent* event) {
    if (watched == qGuiApp && event->type() == QEvent::ApplicationPaletteChange)
        Q_EMIT darkChanged();
    if (watched == qGuiApp && event->type() == QEvent::ApplicationFontChange)
        Q_EMIT fontChanged();
    return QObject::eventFilter(watched, event);
}

} // namespace Kelvane
