#pragma once

#include <QObject>
#include <QString>

#include <optional>

class QWindow;

namespace Kelvane {

/// What the desktop asks of every colour and every text, read from the application's palette and font, which the
/// desktop adapter keeps in step with the system. It knows no colour; those are in `Theme`. Main thread only.
class Appearance : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool dark READ isDark NOTIFY darkChanged)
    Q_PROPERTY(QString family READ family NOTIFY fontChanged)
    /// How much larger than usual the user wants text, from 1.
    Q_PROPERTY(qreal textScale READ textScale NOTIFY fontChanged)
    Q_PROPERTY(bool reducedMotion READ reducedMotion NOTIFY reducedMotionChanged)
    /// Pixels a point where the window is, for images.
    Q_PROPERTY(qreal pixelRatio READ pixelRatio NOTIFY pixelRatioChanged)

public:
    /// The one of the application object, which owns it.
    static Appearance& shared();

    bool isDark() const;
    QString family() const;
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

    /// Finding the font that is drawn with takes long, and every text asks.
    mutable std::optional<qreal> m_textScale;
    qreal m_pixelRatio;
    /// To the screen that the window is on.
    QMetaObject::Connection m_screen;
};

} // namespace Kelvane
