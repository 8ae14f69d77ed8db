#include "Kelvane/Views/SymbolItem.h"

#include <QQmlEngine>
#include <QQuickWindow>
#include <QSGImageNode>

#include <cmath>

namespace Kelvane {

namespace {
/// Symbols below this size have the heavier stroke.
constexpr qreal regularSize = 15;
} // namespace

SymbolItem::SymbolItem(QQuickItem* parent, qreal size)
    : QQuickItem(parent)
    , m_size(size) {
    setFlag(ItemHasContents);
    setImplicitSize(m_size, m_size);
    connect(this, &SymbolItem::changed, this, [this] {
        setImplicitSize(extent(), extent());
        polish();
    });
}

SymbolLook SymbolItem::look(qreal pixelRatio) const {
    const bool strong = m_strong || m_size < regularSize;
    return {.name = m_name,
            .weight = strong ? SymbolImage::Weight::small : SymbolImage::Weight::regular,
            .side = static_cast<int>(std::lround(m_size * pixelRatio)),
            .tint = m_tint};
}

void SymbolItem::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemSceneChange || change == ItemVisibleHasChanged || change == ItemDevicePixelRatioHasChanged)
        polish();
    QQuickItem::itemChange(change, data);
}

void SymbolItem::updatePolish() {
    if (!isVisible() || window() == nullptr)
        return;
    auto* cache = qmlEngine(this)->findChild<SymbolCache*>(QString(), Qt::FindDirectChildrenOnly);
    QImage image =
        cache == nullptr || m_name.isEmpty() ? QImage() : cache->image(look(window()->effectiveDevicePixelRatio()));
    m_isNew = m_isNew || image.cacheKey() != m_image.cacheKey();
    m_image = std::move(image);
    update();
}

QSGNode* SymbolItem::updatePaintNode(QSGNode* former, UpdatePaintNodeData*) {
    if (m_image.isNull()) {
        delete former;
        return nullptr;
    }
    auto* node = static_cast<QSGImageNode*>(former);
    if (node == nullptr) {
        node = window()->createImageNode();
        node->setOwnsTexture(true);
        node->setFiltering(QSGTexture::Linear);
        m_isNew = true;
    }
    if (m_isNew) {
        node->setTexture(window()->createTextureFromImage(m_image, QQuickWindow::TextureCanUseAtlas));
        node->setSourceRect(m_image.rect());
        m_isNew = false;
    }
    node->setRect(boundingRect());
    return node;
}

} // namespace Kelvane
