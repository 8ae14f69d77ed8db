#include "Platform/MacOS/MacOSImages.h"

#include "Platform/MacOS/ImageDrawing.h"
#include "Platform/MacOS/Owner.h"

#include <QPixmap>
#include <QWindow>

#import <AppKit/AppKit.h>
#import <QuartzCore/QuartzCore.h>

namespace Platform {

namespace {

constexpr CGFloat scaleWithoutScreen = 2;

} // namespace

std::optional<QImage> MacOSImages::applicationIcon(const QString& path, int size) {
    @autoreleasepool {
        const QImage image = draw([NSWorkspace.sharedWorkspace iconForFile:path.toNSString()], size, 1);
        if (image.isNull())
            return std::nullopt;
        return image;
    }
}

std::optional<QIcon> MacOSImages::symbol(const QString& name, const QString& description) {
    @autoreleasepool {
        NSImage* named = [NSImage imageWithSystemSymbolName:name.toNSString()
                                   accessibilityDescription:description.toNSString()];
        if (named == nil)
            return std::nullopt;
        QIcon icon;
        // An icon is shown smaller than its largest picture, never larger: from a row's symbol to an empty pane's.
        for (const int points : {14, 16, 18, 22, 28, 40}) {
            NSImage* sized = [named imageWithSymbolConfiguration:[NSImageSymbolConfiguration
                                                                     configurationWithPointSize:points
                                                                                         weight:NSFontWeightRegular]];
            if (sized == nil)
                return std::nullopt;
            for (const int scale : {1, 2})
                icon.addPixmap(QPixmap::fromImage(draw(sized, points, scale)));
        }
        icon.setIsMask(true);
        return icon;
    }
}

std::optional<QImage> MacOSImages::windowPicture(QWindow& window, const QImage& content, const QColor& background) {
    @autoreleasepool {
        auto* view = (__bridge NSView*)reinterpret_cast<void*>(window.winId());
        NSView* frame = view.superview;
        CALayer* whole = frame.layer;
        CALayer* behind = view.layer;
        const Owner<CGImageRef> pixels(content.toCGImage());
        if (whole == nil || behind == nil || !pixels)
            return std::nullopt;
        // What the graphics processor draws cannot be drawn from its layer; a layer with the same pixels, between it
        // and the title bar, can. It is gone again before the screen is drawn.
        CALayer* front = [[CALayer alloc] init];
        front.contents = (__bridge id)pixels.borrow();
        front.frame = behind.frame;
        [behind.superlayer insertSublayer:front above:behind];
        const CGFloat scale = view.window.screen == nil ? scaleWithoutScreen : view.window.backingScaleFactor;
        const QImage picture = draw(whole, frame.bounds.size, scale, background);
        [front removeFromSuperlayer];
        if (picture.isNull())
            return std::nullopt;
        return picture;
    }
}

} // namespace Platform
