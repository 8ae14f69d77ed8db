#include "Platform/MacOS/Desktop.h"

#include "Platform/MacOS/ImageDrawing.h"
#include "Platform/MacOS/MainWindowChrome.h"
#include "Platform/MacOS/NotificationObservers.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QWindow>

#import <AppKit/AppKit.h>

namespace MacOS {

namespace {
void followMotion() {
    qGuiApp->setProperty("reducedMotion",
                         static_cast<bool>(NSWorkspace.sharedWorkspace.accessibilityDisplayShouldReduceMotion));
}
} // namespace

Desktop::Desktop()
    : m_observers(std::make_unique<NotificationObservers>()) {
    @autoreleasepool {
        followMotion();
        m_observers->observe(NSWorkspace.sharedWorkspace.notificationCenter,
                             NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification, ^(NSNotification*) {
                                 followMotion();
                             });
    }
}

Desktop::~Desktop() = default;

void Desktop::setActivationPolicy(ActivationPolicy policy) {
    @autoreleasepool {
        NSApplication* application = NSApplication.sharedApplication;
        const bool regular = policy == ActivationPolicy::regular;
        const BOOL accepted = [application setActivationPolicy:regular ? NSApplicationActivationPolicyRegular
                                                                       : NSApplicationActivationPolicyAccessory];
        if (!accepted) {
            qWarning("The system refused the activation policy.");
        }
        if (!regular) {
            return;
        }
        if (@available(macOS 14.0, *)) {
            [application activate];
        } else {
            [application activateIgnoringOtherApps:YES];
        }
    }
}

void Desktop::setAppearance(Appearance appearance) {
    @autoreleasepool {
        NSAppearance* forced = nil;
        if (appearance == Appearance::light) {
            forced = [NSAppearance appearanceNamed:NSAppearanceNameAqua];
        } else if (appearance == Appearance::dark) {
            forced = [NSAppearance appearanceNamed:NSAppearanceNameDarkAqua];
        }
        // None follows the system.
        NSApplication.sharedApplication.appearance = forced;
    }
}

void Desktop::prepareMainWindow(QWindow& window) {
    if (window.findChild<MainWindowChrome*>(QString(), Qt::FindDirectChildrenOnly) == nullptr) {
        new MainWindowChrome(window);
    }
}

std::optional<QImage> Desktop::applicationIcon(const QString& path, int size) {
    @autoreleasepool {
        const QImage image = draw([NSWorkspace.sharedWorkspace iconForFile:path.toNSString()], size, 1);
        if (image.isNull()) {
            return std::nullopt;
        }
        return image;
    }
}

std::optional<QIcon> Desktop::symbol(const QString& name, const QString& description) {
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

void Desktop::reveal(const QString& path) {
    if (path.isEmpty()) {
        return;
    }
    @autoreleasepool {
        [NSWorkspace.sharedWorkspace activateFileViewerSelectingURLs:@[ [NSURL fileURLWithPath:path.toNSString()] ]];
    }
}

} // namespace MacOS
