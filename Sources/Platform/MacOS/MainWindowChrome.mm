#include "Platform/MacOS/MainWindowChrome.h"

#include <QPlatformSurfaceEvent>
#include <QWindow>

#import <AppKit/AppKit.h>

namespace Platform {

MainWindowChrome::MainWindowChrome(QWindow& window)
    : QObject(&window)
    , m_window(window) {
    window.installEventFilter(this);
    if (window.handle() != nullptr)
        dress();
}

bool MainWindowChrome::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &m_window && event->type() == QEvent::PlatformSurface &&
        static_cast<QPlatformSurfaceEvent*>(event)->surfaceEventType() == QPlatformSurfaceEvent::SurfaceCreated)
        dress();
    return false;
}

void MainWindowChrome::dress() {
    @autoreleasepool {
        auto* view = (__bridge NSView*)reinterpret_cast<void*>(m_window.winId());
        NSWindow* window = view.window;
        if (window == nil)
            return;
        const QSize content = m_window.size();
        window.styleMask |= NSWindowStyleMaskFullSizeContentView;
        window.titlebarAppearsTransparent = YES;
        window.toolbarStyle = NSWindowToolbarStyleUnified;
        // The name is free again only when the native window before is gone; until then the frame is at least restored.
        if (![window setFrameUsingName:@"MainWindow"]) {
            // The content has just grown by the title bar.
            [window
                setContentSize:NSSize{static_cast<CGFloat>(content.width()), static_cast<CGFloat>(content.height())}];
        }
        if (![window setFrameAutosaveName:@"MainWindow"])
            qWarning("The main window's frame is not being remembered: its name is taken.");
    }
}

} // namespace Platform
