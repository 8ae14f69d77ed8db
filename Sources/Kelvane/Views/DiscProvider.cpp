#include "Kelvane/Views/DiscProvider.h"

#include "Kelvane/Symbols/SymbolImage.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Kelvane {

using namespace Qt::StringLiterals;

namespace {
constexpr int usualPixels = 18;
} // namespace

DiscProvider::DiscProvider()
    : QQuickImageProvider(Image) {}

QImage DiscProvider::requestImage(const QString& id, QSize* size, const QSize& requestedSize) {
    const QStringList parts = id.split(u'/');
    const int requested = std::max(requestedSize.width(), requestedSize.height());
    const int pixels = requested > 0 ? requested : usualPixels;
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    if (size != nullptr)
        *size = image.size();
    if (parts.size() != 7)
        return image;

    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const qreal rim = parts[3].toDouble() * pixels;
    if (rim > 0) {
        painter.setBrush(QColor(parts[6]));
        painter.drawEllipse(QRectF(image.rect()));
    }
    painter.setBrush(QColor(parts[5]));
    painter.drawEllipse(QRectF(image.rect()).adjusted(rim, rim, -rim, -rim));
    const int side = static_cast<int>(std::lround(parts[2].toDouble() * pixels));
    const auto weight = parts[1] == u"mark"_s ? SymbolImage::Weight::mark : SymbolImage::Weight::regular;
    const int left = (pixels - side) / 2;
    painter.drawImage(left, left, SymbolImage::tinted(parts[0], weight, side, QColor(parts[4])));
    return image;
}

} // namespace Kelvane
