#include "Platform/MacOS/MacOSWorkspace.h"

#include "Platform/MacOS/InputIdleTime.h"
#include "Platform/MacOS/NotificationObservers.h"

#import <AppKit/AppKit.h>

namespace Platform {

namespace {

Kelvane::RunningApplication describe(NSRunningApplication* application) {
    Kelvane::RunningApplication result;
    result.isRegular = application.activationPolicy == NSApplicationActivationPolicyRegular;
    if (NSString* identifier = application.bundleIdentifier)
        result.bundleID = QString::fromNSString(identifier);
    if (NSString* name = application.localizedName)
        result.name = QString::fromNSString(name);
    return result;
}

} // namespace

MacOSWorkspace::MacOSWorkspace(QObject* parent)
    : Kelvane::Workspace(parent)
    , m_observers(std::make_unique<NotificationObservers>()) {
    @autoreleasepool {
        // The blocks run on the main thread, where this object dies and its observers with it: the pointer is good.
        NSNotificationCenter* workspace = NSWorkspace.sharedWorkspace.notificationCenter;
        m_observers->observe(workspace, NSWorkspaceDidActivateApplicationNotification, ^(NSNotification* notification) {
            id application = notification.userInfo[NSWorkspaceApplicationKey];
            if ([application isKindOfClass:NSRunningApplication.class])
                Q_EMIT activated(describe(application));
        });

        void (^pause)(NSNotification*) = ^(NSNotification*) {
            Q_EMIT paused();
        };
        void (^resume)(NSNotification*) = ^(NSNotification*) {
            Q_EMIT resumed();
        };
        m_observers->observe(workspace, NSWorkspaceScreensDidSleepNotification, pause);
        m_observers->observe(workspace, NSWorkspaceWillSleepNotification, pause);
        m_observers->observe(workspace, NSWorkspaceSessionDidResignActiveNotification, pause);
        m_observers->observe(workspace, NSWorkspaceScreensDidWakeNotification, resume);
        m_observers->observe(workspace, NSWorkspaceDidWakeNotification, resume);
        m_observers->observe(workspace, NSWorkspaceSessionDidBecomeActiveNotification, resume);

        NSNotificationCenter* distributed = [NSDistributedNotificationCenter defaultCenter];
        m_observers->observe(distributed, @"com.apple.screenIsLocked", pause);
        m_observers->observe(distributed, @"com.apple.screenIsUnlocked", resume);
    }
}

MacOSWorkspace::~MacOSWorkspace() = default;

std::optional<Kelvane::RunningApplication> MacOSWorkspace::frontApplication() {
    @autoreleasepool {
        NSRunningApplication* application = NSWorkspace.sharedWorkspace.frontmostApplication;
        if (application == nil)
            return std::nullopt;
        return describe(application);
    }
}

std::optional<std::chrono::duration<double>> MacOSWorkspace::sinceLastInput() {
    return inputIdleTime();
}

} // namespace Platform
