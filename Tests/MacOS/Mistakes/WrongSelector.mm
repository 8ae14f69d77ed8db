// must be found: declares the selector 'URLForApplicationWithIdentifier:'
#import <AppKit/AppKit.h>

NSURL* wrongSelector();
NSURL* wrongSelector() {
    return [NSWorkspace.sharedWorkspace URLForApplicationWithIdentifier:@"com.apple.finder"];
}
