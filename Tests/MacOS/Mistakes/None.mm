// No mistake: what the other files get wrong, done right. It must pass, or they would fail for reasons of their own.
#include "Platform/MacOS/PreferenceName.h"
#include "Platform/SystemDesktop.h"
#include "Platform/SystemPlatform.h"

#import <AppKit/AppKit.h>
#import <ServiceManagement/ServiceManagement.h>

// What the programs install, under the names that they know it by.
static_assert(std::is_same_v<SystemPlatform, MacOSPlatform> && std::is_same_v<SystemDesktop, MacOSDesktop>);

namespace {
MacOS::Owner<CFPropertyListRef> copyAppValue(const MacOS::PreferenceKey& key, const MacOS::PreferenceDomain& domain) {
    return MacOS::Owner<CFPropertyListRef>(CFPreferencesCopyAppValue(key.borrow(), domain.borrow()));
}
} // namespace

bool nothingWrong(NSWindow* window);
bool nothingWrong(NSWindow* window) {
    const MacOS::PreferenceKey key(QStringLiteral("show-recents"));
    const MacOS::PreferenceDomain domain(QStringLiteral("com.apple.dock"));
    const MacOS::Owner value = copyAppValue(key, domain);
    NSApplication* application = NSApplication.sharedApplication;
    if (@available(macOS 14.0, *)) {
        [application activate];
    }
    NSBundle* bundle = [[NSBundle alloc] initWithURL:[NSURL fileURLWithPath:@"/" isDirectory:YES]];
    window.styleMask |= NSWindowStyleMaskFullSizeContentView;
    return value && bundle != nil;
}
