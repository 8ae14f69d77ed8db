#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

class QJSEngine;
class QQmlEngine;
class QWindow;

namespace Kelvane {

/// The desktop's appearance: dark mode, font, reduced motion and pixel ratio, read from the application's palette and
/// font, which the desktop adapter updates. Colours are in `Theme`. Main thread only.
class Appearance : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool dark READ isDark NOTIFY darkChanged)
    Q_PROPERTY(bool reducedMotion READ reducedMotion NOTIFY reducedMotionChanged)
    /// Pixels per point on the window's screen, for images.
    Q_PROPERTY(qreal pixelRatio READ pixelRatio NOTIFY pixelRatioChanged)

public:
    /// The only instance; the application object owns it.
    static Appearance& shared();
    static Appearance* create(QQmlEngine*, QJSEngine*);

    bool isDark() const;
    QString family() const;
    /// How much larger than usual the user wants text, from 1.
    qreal textScale() const;
    bool reducedMotion() const;
    qreal pixelRatio() const { return m_pixelRatio; }
    /// Follows the window from screen to screen.
    void follow(QWindow& window);

    bool eventFilter(QObject* watched, QEvent* event) override;

    /// The size of body text in pixels when the user has not asked for larger text.
    static constexpr int bodySize = 13;

Q_SIGNALS:
    void darkChanged();
    void fontChanged();
    void reducedMotionChanged();
    void pixelRatioChanged();

private:
    explicit Appearance(QObject* parent);
    void setPixelRatio(qreal pixelRatio);

    /// Cached: resolving the font is slow, and every text item asks.
    mutable std::optional<qreal> m_textScale;
    qreal m_pixelRatio;
    /// The connection to the window's screen.
    QMetaObject::Connection m_screen;
};

} // namespace Kelvane
