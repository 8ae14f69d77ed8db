#include "Kelvane/ViewModels/Appearance.h"

#include <QEvent>
#include <QFont>
#include <QFontInfo>
#include <QGuiApplication>
#include <QJSEngine>
#include <QPalette>
#include <QPointer>
#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace Kelvane {

Appearance::Appearance(QObject* parent)
    : QObject(parent)
    , m_pixelRatio(qGuiApp->devicePixelRatio()) {
    qGuiApp->installEventFilter(this);
}

Appearance& Appearance::shared() {
    static QPointer<Appearance> appearance;
    if (!appearance)
        appearance = new Appearance(qGuiApp);
    return *appearance;
}

Appearance* Appearance::create(QQmlEngine*, QJSEngine*) {
    QJSEngine::setObjectOwnership(&shared(), QJSEngine::CppOwnership);
    return &shared();
}

bool Appearance::isDark() const {
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
}

QString Appearance::family() const {
    return QGuiApplication::font().family();
}

qreal Appearance::textScale() const {
    if (!m_textScale)
        m_textScale = std::max(1.0, QFontInfo(QGuiApplication::font()).pixelSize() / static_cast<qreal>(bodySize));
    return *m_textScale;
}

bool Appearance::reducedMotion() const {
    return qGuiApp->property("reducedMotion").toBool();
}

void Appearance::follow(QWindow& window) {
    const auto enter = [this](const QScreen* screen) {
        disconnect(m_screen);
        if (screen == nullptr)
            return;
        setPixelRatio(screen->devicePixelRatio());
        m_screen = connect(screen, &QScreen::physicalDotsPerInchChanged, this,
                           [this, screen] { setPixelRatio(screen->devicePixelRatio()); });
    };
    connect(&window, &QWindow::screenChanged, this, enter);
    enter(window.screen());
}

void Appearance::setPixelRatio(qreal pixelRatio) {
    if (qFuzzyCompare(pixelRatio, m_pixelRatio))
        return;
    m_pixelRatio = pixelRatio;
    Q_EMIT pixelRatioChanged();
}

bool Appearance::eventFilter(QObject* watched, QEvent* event) {
    if (watched == qGuiApp && event->type() == QEvent::ApplicationPaletteChange)
        Q_EMIT darkChanged();
    if (watched == qGuiApp && event->type() == QEvent::ApplicationFontChange) {
        m_textScale.reset();
        Q_EMIT fontChanged();
    }
    if (watched == qGuiApp && event->type() == QEvent::DynamicPropertyChange)
        Q_EMIT reducedMotionChanged();
    return QObject::eventFilter(watched, event);
}

} // namespace Kelvane
