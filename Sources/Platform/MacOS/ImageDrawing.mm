#include "Platform/MacOS/ImageDrawing.h"

#include "Platform/MacOS/Owner.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace Platform {

namespace {

/// `size` shrunk or grown into a square of `side`, in its own proportions and centred.
NSRect fitted(NSSize size, CGFloat side) {
    const CGFloat longest = std::max(size.width, size.height);
    if (longest <= 0)
        return {{0, 0}, {side, side}};
    const CGFloat width = size.width * side / longest;
    const CGFloat height = size.height * side / longest;
    return {{(side - width) / 2, (side - height) / 2}, {width, height}};
}

/// Draws into the pixels of `image`, which outlives it; null when the system has no memory for it.
Owner<CGContextRef> canvas(QImage& image) {
    const Owner<CGColorSpaceRef> space(CGColorSpaceCreateWithName(kCGColorSpaceSRGB));
    return Owner<CGContextRef>(CGBitmapContextCreate(image.bits(), static_cast<size_t>(image.width()),
                                                     static_cast<size_t>(image.height()), 8,
                                                     static_cast<size_t>(image.bytesPerLine()), space.borrow(),
                                                     static_cast<std::uint32_t>(kCGImageAlphaPremultipliedFirst) |
                                                         static_cast<std::uint32_t>(kCGBitmapByteOrder32Host)));
}

} // namespace

QImage draw(NSImage* _Nonnull image, int size, int scale) {
    const int pixels = size * scale;
    QImage result(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    if (result.isNull())
        return {};
    result.fill(Qt::transparent);
    const Owner<CGContextRef> context = canvas(result);
    if (!context)
        return {};
    @autoreleasepool {
        [NSGraphicsContext saveGraphicsState];
        NSGraphicsContext.currentContext = [NSGraphicsContext graphicsContextWithCGContext:context.borrow() flipped:NO];
        [image drawInRect:fitted(image.size, pixels)
                 fromRect:NSRect {}
                operation:NSCompositingOperationSourceOver
                 fraction:1];
        [NSGraphicsContext restoreGraphicsState];
    }
    result.setDevicePixelRatio(scale);
    return result;
}

QImage draw(CALayer* _Nonnull layer, CGSize size, CGFloat scale, const QColor& background) {
    QImage result(static_cast<int>(std::lround(size.width * scale)), static_cast<int>(std::lround(size.height * scale)),
                  QImage::Format_ARGB32_Premultiplied);
    if (result.isNull())
        return {};
    result.fill(background);
    const Owner<CGContextRef> context = canvas(result);
    if (!context)
        return {};
    CGContextScaleCTM(context.borrow(), scale, scale);
    [layer renderInContext:context.borrow()];
    return result;
}

} // namespace Platform
