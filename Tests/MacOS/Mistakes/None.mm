// No mistake: what the other files get wrong, done right. It must pass, or they would fail for reasons of their own.
#include "Platform/MacOS/PreferenceName.h"
#include "Platform/SystemServices.h"
#include "Platform/SystemSession.h"

#import <AppKit/AppKit.h>
#import <ServiceManagement/ServiceManagement.h>

// What the programs install, under the names that they know it by.
static_assert(std::is_same_v<Platform::SystemServices, Platform::MacOSServices> &&
              std::is_same_v<Platform::SystemSession, Platform::MacOSSession>);

namespace {
Platform::Owner<CFPropertyListRef> copyAppValue(const Platform::PreferenceKey& key,
                                                const Platform::PreferenceDomain& domain) {
    return Platform::Owner<CFPropertyListRef>(CFPreferencesCopyAppValue(key.borrow(), domain.borrow()));
}
} // namespace

bool nothingWrong(NSWindow* window);
bool nothingWrong(NSWindow* window) {
    const Platform::PreferenceKey key(QStringLiteral("show-recents"));
    const Platform::PreferenceDomain domain(QStringLiteral("com.apple.dock"));
    const Platform::Owner value = copyAppValue(key, domain);
    NSApplication* application = NSApplication.sharedApplication;
    if (@available(macOS 14.0, *)) {
        [application activate];
    }
    NSBundle* bundle = [[NSBundle alloc] initWithURL:[NSURL fileURLWithPath:@"/" isDirectory:YES]];
    window.styleMask |= NSWindowStyleMaskFullSizeContentView;
    return value && bundle != nil;
}
