// must be found: property 'frontApplication' not found
#import <AppKit/AppKit.h>

bool wrongProperty();
bool wrongProperty() {
    return NSWorkspace.sharedWorkspace.frontApplication != nil;
}
