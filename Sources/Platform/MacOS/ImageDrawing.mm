#include "Platform/MacOS/ImageDrawing.h"

#include "Platform/MacOS/Owner.h"

#include <algorithm>
#include <cstdint>

namespace MacOS {

namespace {

/// `size` shrunk or grown into a square of `side`, in its own proportions and centred.
NSRect fitted(NSSize size, CGFloat side) {
    const CGFloat longest = std::max(size.width, size.height);
    if (longest <= 0) {
        return {{0, 0}, {side, side}};
    }
    const CGFloat width = size.width * side / longest;
    const CGFloat height = size.height * side / longest;
    return {{(side - width) / 2, (side - height) / 2}, {width, height}};
}

} // namespace

QImage draw(NSImage* _Nonnull image, int size, int scale) {
    const int pixels = size * scale;
    QImage result(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    if (result.isNull()) {
        return {};
    }
    result.fill(Qt::transparent);
    const Owner<CGColorSpaceRef> space(CGColorSpaceCreateWithName(kCGColorSpaceSRGB));
    const Owner<CGContextRef> canvas(CGBitmapContextCreate(result.bits(), static_cast<size_t>(pixels),
                                                           static_cast<size_t>(pixels), 8,
                                                           static_cast<size_t>(result.bytesPerLine()), space.borrow(),
                                                           static_cast<std::uint32_t>(kCGImageAlphaPremultipliedFirst) |
                                                               static_cast<std::uint32_t>(kCGBitmapByteOrder32Host)));
    if (!canvas) {
        return {};
    }
    @autoreleasepool {
        [NSGraphicsContext saveGraphicsState];
        NSGraphicsContext.currentContext = [NSGraphicsContext graphicsContextWithCGContext:canvas.borrow() flipped:NO];
        [image drawInRect:fitted(image.size, pixels)
                 fromRect:NSRect {}
                operation:NSCompositingOperationSourceOver
                 fraction:1];
        [NSGraphicsContext restoreGraphicsState];
    }
    result.setDevicePixelRatio(scale);
    return result;
}

} // namespace MacOS
