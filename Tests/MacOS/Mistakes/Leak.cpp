// must be found: leak of an object
#include <CoreFoundation/CoreFoundation.h>

CFIndex leak(const UInt8* bytes, CFIndex length);
CFIndex leak(const UInt8* bytes, CFIndex length) {
    CFDataRef data = CFDataCreate(kCFAllocatorDefault, bytes, length);
    return data == nullptr ? 0 : CFDataGetLength(data);
}
