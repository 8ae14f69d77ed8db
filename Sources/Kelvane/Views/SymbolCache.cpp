#include "Kelvane/Views/SymbolCache.h"

#include "Kelvane/Ports/Images.h"

#include <QIcon>
#include <QPainter>

#include <memory>

namespace Kelvane {

namespace {

QImage blank(int pixels) {
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

/// The mask in one colour, centred in a square.
QImage tinted(const QIcon& mask, int pixels, const QColor& tint) {
    QImage image = blank(pixels);
    QPainter painter(&image);
    mask.paint(&painter, image.rect());
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), tint);
    return image;
}

QImage onDisc(const SymbolLook& look) {
    QImage image = blank(look.disc);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QRectF whole(image.rect());
    if (look.rim > 0) {
        painter.setBrush(look.rimColour);
        painter.drawEllipse(whole);
    }
    painter.setBrush(look.fill);
    painter.drawEllipse(whole.adjusted(look.rim, look.rim, -look.rim, -look.rim));
    const int left = (look.disc - look.side) / 2;
    painter.drawImage(left, left, SymbolImage::tinted(look.name, look.weight, look.side, look.tint));
    return image;
}

} // namespace

/// In this namespace so that the cache finds it.
static size_t qHash(const SymbolLook& look, size_t seed) {
    return qHashMulti(seed, look.name, static_cast<int>(look.weight), look.side, look.tint.rgba(), look.disc,
                      look.fill.rgba(), look.rimColour.rgba());
}

SymbolCache::SymbolCache(Images& images, QObject* parent)
    : QObject(parent)
    , m_images(images)
    , m_drawn(capacity) {}

QImage SymbolCache::image(const SymbolLook& look) {
    if (const QImage* known = m_drawn.object(look))
        return *known;
    QImage drawn = draw(look);
    m_drawn.insert(look, new QImage(drawn), drawn.sizeInBytes());
    return drawn;
}

QImage SymbolCache::draw(const SymbolLook& look) const {
    return look.disc > 0 ? onDisc(look) : symbol(look);
}

QImage SymbolCache::symbol(const SymbolLook& look) const {
    if (!look.tint.isValid())
        return SymbolImage::picture(look.name, look.side);
    if (const std::optional<QIcon> mask = m_images.symbol(look.name, QString()))
        return tinted(*mask, look.side, look.tint);
    return SymbolImage::tinted(look.name, look.weight, look.side, look.tint);
}

} // namespace Kelvane
