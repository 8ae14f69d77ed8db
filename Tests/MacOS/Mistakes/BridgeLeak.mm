// must be found: leak of an object
#import <Foundation/Foundation.h>

NSURL* bridgeLeak(const UniChar* characters, CFIndex length);
NSURL* bridgeLeak(const UniChar* characters, CFIndex length) {
    CFStringRef name = CFStringCreateWithCharacters(kCFAllocatorDefault, characters, length);
    if (name == nullptr) {
        return nil;
    }
    return [NSURL fileURLWithPath:(__bridge NSString*)name];
}
