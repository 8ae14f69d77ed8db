// must be found: Nullable pointer is passed to a callee that requires a non-null
#import <AppKit/AppKit.h>

NSURL* nullableThroughVariable();
NSURL* nullableThroughVariable() {
    NSString* name = [NSWorkspace.sharedWorkspace URLForApplicationWithBundleIdentifier:@"com.apple.finder"].path;
    return [NSURL fileURLWithPath:name];
}
