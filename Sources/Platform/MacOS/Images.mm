#include "Platform/MacOS/Images.h"

#include "Platform/MacOS/ImageDrawing.h"

#include <QPixmap>

#import <AppKit/AppKit.h>

namespace MacOS {

std::optional<QImage> Images::applicationIcon(const QString& path, int size) {
    @autoreleasepool {
        const QImage image = draw([NSWorkspace.sharedWorkspace iconForFile:path.toNSString()], size, 1);
        if (image.isNull()) {
            return std::nullopt;
        }
        return image;
    }
}

std::optional<QIcon> Images::symbol(const QString& name, const QString& description) {
    @autoreleasepool {
        NSImage* named = [NSImage imageWithSystemSymbolName:name.toNSString()
                                   accessibilityDescription:description.toNSString()];
        if (named == nil) {
            return std::nullopt;
        }
        QIcon icon;
        // An icon is shown smaller than its largest picture, never larger: from a row's symbol to an empty pane's.
        for (const int points : {14, 16, 18, 22, 28, 40}) {
            NSImage* sized = [named imageWithSymbolConfiguration:[NSImageSymbolConfiguration
                                                                     configurationWithPointSize:points
                                                                                         weight:NSFontWeightRegular]];
            if (sized == nil) {
                return std::nullopt;
            }
            for (const int scale : {1, 2}) {
                icon.addPixmap(QPixmap::fromImage(draw(sized, points, scale)));
            }
        }
        icon.setIsMask(true);
        return icon;
    }
}

} // namespace MacOS
