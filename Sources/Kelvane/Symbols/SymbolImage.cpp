#include "Kelvane/Symbols/SymbolImage.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace Kelvane {

using namespace Qt::StringLiterals;

namespace {

QString file(const QString& name, SymbolImage::Weight weight) {
    const QString stem = u":/kelvane/symbols/"_s + name;
    const QString suffix = weight == SymbolImage::Weight::small  ? u".small"_s
                           : weight == SymbolImage::Weight::mark ? u".mark"_s
                                                                 : QString();
    const QString drawn = stem + suffix + u".svg"_s;
    return QFile::exists(drawn) ? drawn : stem + u".svg"_s;
}

QImage drawn(const QString& path, int pixels) {
    QSvgRenderer renderer;
    if (pixels <= 0 || !QFile::exists(path) || !renderer.load(path))
        return {};
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

} // namespace

QImage SymbolImage::tinted(const QString& name, Weight weight, int pixels, const QColor& tint) {
    QImage image = drawn(file(name, weight), pixels);
    if (image.isNull())
        return {};
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), tint);
    return image;
}

QImage SymbolImage::picture(const QString& name, int pixels) {
    return drawn(file(name, Weight::regular), pixels);
}

} // namespace Kelvane
