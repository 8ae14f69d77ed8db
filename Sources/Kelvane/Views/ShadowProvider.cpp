#include "Kelvane/Views/ShadowProvider.h"

#include <QColor>
#include <QPainter>

#include <algorithm>
#include <vector>

namespace Kelvane {

namespace {

/// One pass of a box blur along lines of `length` values that lie `step` apart.
void blurLine(uchar* first, int length, qsizetype step, int reach) {
    std::vector<int> sums(static_cast<size_t>(length) + 1, 0);
    for (int i = 0; i < length; ++i)
        sums[static_cast<size_t>(i) + 1] = sums[static_cast<size_t>(i)] + first[i * step];
    for (int i = 0; i < length; ++i) {
        const int from = std::max(0, i - reach);
        const int to = std::min(length, i + reach + 1);
        first[i * step] =
            static_cast<uchar>((sums[static_cast<size_t>(to)] - sums[static_cast<size_t>(from)]) / (2 * reach + 1));
    }
}

/// Three box blurs look like the smooth one.
void blur(QImage& mask, int reach) {
    for (int pass = 0; pass < 3; ++pass) {
        for (int y = 0; y < mask.height(); ++y)
            blurLine(mask.scanLine(y), mask.width(), 1, reach);
        for (int x = 0; x < mask.width(); ++x)
            blurLine(mask.bits() + x, mask.height(), static_cast<int>(mask.bytesPerLine()), reach);
    }
}

} // namespace

ShadowProvider::ShadowProvider()
    : QQuickImageProvider(Image) {}

QImage ShadowProvider::requestImage(const QString& id, QSize* size, const QSize&) {
    const int spread = std::clamp(id.section(u'/', 0, 0).toInt(), 1, 64);
    const int radius = std::clamp(id.section(u'/', 1, 1).toInt(), 0, 64);
    const QColor colour(id.section(u'/', 2));
    // Two corners of the shape, and one pixel between them to stretch.
    const int side = 2 * (2 * spread + radius) + 1;

    QImage mask(side, side, QImage::Format_Alpha8);
    mask.fill(Qt::transparent);
    {
        QPainter painter(&mask);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::black);
        painter.drawRoundedRect(QRect(spread, spread, side - 2 * spread, side - 2 * spread), radius, radius);
    }
    blur(mask, std::max(1, spread / 3));

    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(colour);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(0, 0, mask);
    if (size != nullptr)
        *size = image.size();
    return image;
}

} // namespace Kelvane
