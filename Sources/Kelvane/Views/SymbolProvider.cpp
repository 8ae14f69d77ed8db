#include "Kelvane/Views/SymbolProvider.h"

#include "Kelvane/Ports/Images.h"
#include "Kelvane/Symbols/SymbolImage.h"

#include <QPainter>

#include <algorithm>

namespace Kelvane {

using namespace Qt::StringLiterals;

namespace {

constexpr int usualPixels = 16;

SymbolImage::Weight weight(const QString& name) {
    return name == u"small"_s  ? SymbolImage::Weight::small
           : name == u"mark"_s ? SymbolImage::Weight::mark
                               : SymbolImage::Weight::regular;
}

/// The mask in one colour, centred in a square.
QImage tinted(const QIcon& mask, int pixels, const QColor& tint) {
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    mask.paint(&painter, image.rect());
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), tint);
    return image;
}

} // namespace

SymbolProvider::SymbolProvider(Images& images)
    : QQuickImageProvider(Image)
    , m_images(images) {}

QImage SymbolProvider::requestImage(const QString& id, QSize* size, const QSize& requestedSize) {
    const int pixels = std::max(requestedSize.width(), requestedSize.height());
    QImage result = image(id, pixels > 0 ? pixels : usualPixels);
    if (size != nullptr)
        *size = result.size();
    return result;
}

QImage SymbolProvider::image(const QString& id, int pixels) {
    const QString name = id.section(u'/', 0, 0);
    const QString colour = id.section(u'/', 2);
    if (colour == u"none"_s)
        return SymbolImage::picture(name, pixels);
    const QColor tint(colour);
    // The tiny discs have marks of their own, drawn for that size.
    if (id.section(u'/', 1, 1) != u"mark"_s) {
        if (const std::optional<QIcon> mask = m_images.symbol(name, QString()))
            return tinted(*mask, pixels, tint);
    }
    return SymbolImage::tinted(name, weight(id.section(u'/', 1, 1)), pixels, tint);
}

} // namespace Kelvane
