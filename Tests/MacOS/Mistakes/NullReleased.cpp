// must be found: Null passed to a callee that requires a non-null
#include <CoreFoundation/CoreFoundation.h>

void nullReleased(CFStringRef key, CFStringRef domain);
void nullReleased(CFStringRef key, CFStringRef domain) {
    CFPropertyListRef value = CFPreferencesCopyAppValue(key, domain);
    if (value == nullptr) {
        CFRelease(value);
    } else {
        CFRelease(value);
    }
}
