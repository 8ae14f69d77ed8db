#include "Platform/Linux/IconFile.h"

#include "DockCore/Storage/BoundedFile.h"
#include "DockCore/Storage/PropertyList.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>
#include <QtEndian>

using namespace Qt::StringLiterals;
using DockCore::BoundedFile;
using DockCore::PropertyList;

namespace Platform {

namespace {

constexpr qint64 largestInfo = 16LL * 1024 * 1024;
constexpr int largestSide = 4096;
constexpr qsizetype headerSize = 8;

/// The image scaled into a transparent square.
QImage fitted(const QImage& image, int size) {
    const QImage scaled = image.scaled(size, size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QImage square(size, size, QImage::Format_ARGB32_Premultiplied);
    square.fill(Qt::transparent);
    QPainter painter(&square);
    painter.drawImage((size - scaled.width()) / 2, (size - scaled.height()) / 2, scaled);
    return square;
}

std::optional<QImage> raster(const QByteArray& bytes, int size) {
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer);
    const QSize natural = reader.size();
    if (natural.width() > largestSide || natural.height() > largestSide)
        return std::nullopt;
    const QImage image = reader.read();
    return image.isNull() ? std::nullopt : std::optional(fitted(image, size));
}

std::optional<QImage> drawing(const QByteArray& bytes, int size) {
    QSvgRenderer renderer;
    if (!renderer.load(bytes))
        return std::nullopt;
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

/// The width that an element's PNG says it has; nothing for what is no PNG. Elements in the older pixel formats and in
/// JPEG 2000 are passed over: whoever has them has PNG ones as well since 2007.
std::optional<int> pngWidth(const QByteArray& element) {
    constexpr qsizetype widthAt = 16;
    if (!element.startsWith("\x89PNG\r\n\x1a\n") || element.size() < widthAt + 8)
        return std::nullopt;
    return static_cast<int>(qFromBigEndian<quint32>(element.constData() + widthAt));
}

/// The smallest element that need not be enlarged, else the largest.
std::optional<QImage> container(const QByteArray& bytes, int size) {
    QByteArray best;
    int bestWidth = 0;
    for (qsizetype at = headerSize; at + headerSize <= bytes.size();) {
        const qsizetype length = qFromBigEndian<quint32>(bytes.constData() + at + 4);
        if (length < headerSize || length > bytes.size() - at)
            break;
        const QByteArray element = bytes.mid(at + headerSize, length - headerSize);
        if (const std::optional<int> width = pngWidth(element)) {
            const bool better = bestWidth < size ? *width > bestWidth : *width >= size && *width < bestWidth;
            if (better) {
                best = element;
                bestWidth = *width;
            }
        }
        at += length;
    }
    return best.isEmpty() ? std::nullopt : raster(best, size);
}

QString named(const QString& bundle) {
    const BoundedFile info = BoundedFile::read(bundle + u"/Contents/Info.plist"_s, largestInfo);
    const std::optional<PropertyList> list = PropertyList::parse(info.bytes);
    const PropertyList::Dictionary* values = list ? list->dictionary() : nullptr;
    if (values == nullptr)
        return {};
    const auto value = values->constFind(u"CFBundleIconFile"_s);
    const QString* name = value == values->cend() ? nullptr : value->string();
    // A name, never a way out of the bundle.
    return name == nullptr ? QString() : QFileInfo(*name).fileName();
}

} // namespace

std::optional<QImage> IconFile::read(const QByteArray& bytes, int size) {
    if (size <= 0 || size > largestSide)
        return std::nullopt;
    if (bytes.startsWith("icns"))
        return container(bytes, size);
    if (bytes.left(512).contains("<svg") || bytes.startsWith("<?xml"))
        return drawing(bytes, size);
    return raster(bytes, size);
}

std::optional<QString> IconFile::inBundle(const QString& bundle) {
    const QDir resources(bundle + u"/Contents/Resources"_s);
    const QString name = named(bundle);
    if (!name.isEmpty()) {
        for (const QString& suffix : {QString(), u".icns"_s, u".png"_s, u".svg"_s}) {
            if (resources.exists(name + suffix))
                return resources.filePath(name + suffix);
        }
    }
    const QStringList icons = resources.entryList({u"*.icns"_s}, QDir::Files);
    return icons.size() == 1 ? std::optional(resources.filePath(icons.first())) : std::nullopt;
}

} // namespace Platform
