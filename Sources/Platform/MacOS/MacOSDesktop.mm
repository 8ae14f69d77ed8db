#include "Platform/MacOS/MacOSDesktop.h"

#include "Platform/MacOS/MainWindowChrome.h"
#include "Platform/MacOS/NotificationObservers.h"

#include <QGuiApplication>
#include <QWindow>

#import <AppKit/AppKit.h>

namespace Platform {

namespace {

void followMotion() {
    qGuiApp->setProperty("reducedMotion",
                         static_cast<bool>(NSWorkspace.sharedWorkspace.accessibilityDisplayShouldReduceMotion));
}

} // namespace

MacOSDesktop::MacOSDesktop()
    : m_observers(std::make_unique<NotificationObservers>()) {
    @autoreleasepool {
        followMotion();
        m_observers->observe(NSWorkspace.sharedWorkspace.notificationCenter,
                             NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification, ^(NSNotification*) {
                                 followMotion();
                             });
    }
}

MacOSDesktop::~MacOSDesktop() = default;

void MacOSDesktop::setActivationPolicy(ActivationPolicy policy) {
    @autoreleasepool {
        NSApplication* application = NSApplication.sharedApplication;
        const bool regular = policy == ActivationPolicy::regular;
        const BOOL accepted = [application setActivationPolicy:regular ? NSApplicationActivationPolicyRegular
                                                                       : NSApplicationActivationPolicyAccessory];
        if (!accepted)
            qWarning("The system refused the activation policy.");
        if (!regular)
            return;
        if (@available(macOS 14.0, *))
            [application activate];
        else
            [application activateIgnoringOtherApps:YES];
    }
}

void MacOSDesktop::setAppearance(Appearance appearance) {
    @autoreleasepool {
        NSAppearance* forced = nil;
        if (appearance == Appearance::light)
            forced = [NSAppearance appearanceNamed:NSAppearanceNameAqua];
        else if (appearance == Appearance::dark)
            forced = [NSAppearance appearanceNamed:NSAppearanceNameDarkAqua];
        // None follows the system.
        NSApplication.sharedApplication.appearance = forced;
    }
}

void MacOSDesktop::prepareMainWindow(QWindow& window) {
    if (window.findChild<MainWindowChrome*>(QString(), Qt::FindDirectChildrenOnly) == nullptr)
        new MainWindowChrome(window);
}

bool MacOSDesktop::showAboutPanel() {
    @autoreleasepool {
        [NSApplication.sharedApplication orderFrontStandardAboutPanel:nil];
    }
    return true;
}

void MacOSDesktop::reveal(const QString& path) {
    if (path.isEmpty())
        return;
    @autoreleasepool {
        [NSWorkspace.sharedWorkspace activateFileViewerSelectingURLs:@[ [NSURL fileURLWithPath:path.toNSString()] ]];
    }
}

} // namespace Platform
