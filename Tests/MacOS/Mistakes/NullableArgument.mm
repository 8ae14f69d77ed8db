// must be found: nullable-to-nonnull-conversion
#import <AppKit/AppKit.h>

NSImage* nullableArgument(NSURL* url);
NSImage* nullableArgument(NSURL* url) {
    return [NSWorkspace.sharedWorkspace iconForFile:url.path];
}
