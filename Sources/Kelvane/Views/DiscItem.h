#pragma once

#include "Kelvane/Views/SymbolItem.h"

namespace Kelvane {

/// `Disc` in QML: a symbol on a disc, in one image because a shelf has many. `size` is the diameter of the disc; a rim
/// lies outside it. Main thread only.
// The base is qualified because the description of QML types takes its name as it is written.
class DiscItem : public Kelvane::SymbolItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(Disc)
    Q_PROPERTY(QColor fill MEMBER m_fill NOTIFY changed REQUIRED)
    /// The colour of the rim; there is none where it is clear.
    Q_PROPERTY(QColor rim MEMBER m_rim NOTIFY changed)
    Q_PROPERTY(qreal rimWidth READ rimWidth NOTIFY changed)

public:
    explicit DiscItem(QQuickItem* parent = nullptr)
        : SymbolItem(parent, usualSize) {}

    qreal rimWidth() const { return m_rim.alpha() > 0 ? 2 : 0; }

protected:
    static constexpr qreal usualSize = 18;

    qreal extent() const override { return size() + 2 * rimWidth(); }
    SymbolLook look(qreal pixelRatio) const override;

private:
    QColor m_fill;
    QColor m_rim = Qt::transparent;
};

} // namespace Kelvane
