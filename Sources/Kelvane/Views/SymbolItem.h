#pragma once

#include "Kelvane/Views/SymbolCache.h"

#include <QQuickItem>

namespace Kelvane {

/// `Symbol` in QML: one of the symbols in one colour, from the cache of its engine. The stroke is heavier below 15
/// points. Nothing is drawn before the item is first visible. Main thread only.
class SymbolItem : public QQuickItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(Symbol)
    /// Empty for no symbol.
    Q_PROPERTY(QString name MEMBER m_name NOTIFY changed REQUIRED)
    /// Without a tint the symbol has the colours of its file.
    Q_PROPERTY(QColor tint MEMBER m_tint NOTIFY changed)
    /// Width and height in points.
    Q_PROPERTY(qreal size MEMBER m_size NOTIFY changed)
    /// The heavier stroke at any size.
    Q_PROPERTY(bool strong MEMBER m_strong NOTIFY changed)

public:
    explicit SymbolItem(QQuickItem* parent = nullptr, qreal size = usualSize);

Q_SIGNALS:
    void changed();

protected:
    static constexpr qreal usualSize = 16;

    /// The width and height of what is drawn, in points.
    virtual qreal extent() const { return m_size; }
    /// What is drawn with so many pixels a point.
    virtual SymbolLook look(qreal pixelRatio) const;

    const QString& name() const { return m_name; }
    const QColor& tint() const { return m_tint; }
    qreal size() const { return m_size; }

    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void updatePolish() override;
    QSGNode* updatePaintNode(QSGNode* former, UpdatePaintNodeData* data) override;

private:
    QString m_name;
    QColor m_tint;
    qreal m_size;
    bool m_strong = false;
    QImage m_image;
    /// The scene graph has another image.
    bool m_isNew = false;
};

} // namespace Kelvane
