// must be found: only available on macOS 14.0 or newer
#import <AppKit/AppKit.h>

void missingAvailabilityGuard();
void missingAvailabilityGuard() {
    [NSApplication.sharedApplication activate];
}
