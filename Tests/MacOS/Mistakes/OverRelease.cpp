// must be found: Incorrect decrement of the reference count
#include <CoreFoundation/CoreFoundation.h>

void overRelease(CFArrayRef array);
void overRelease(CFArrayRef array) {
    if (const void* first = CFArrayGetValueAtIndex(array, 0)) {
        CFRelease(first);
    }
}
