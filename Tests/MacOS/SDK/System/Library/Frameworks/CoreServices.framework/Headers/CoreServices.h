#pragma once

// One declaration a line, each with its source; that is why these lines are long.

#include <CoreFoundation/CoreFoundation.h>

#include <Availability.h>

// Every path below starts with "coreservices/".
extern "C" {
CF_ASSUME_NONNULL_BEGIN

typedef struct CF_BRIDGED_TYPE(id) __MDItem* MDItemRef;                                                      // mditem
extern const CFStringRef kMDItemLastUsedDate API_AVAILABLE(macos(10.4));                                     // kmditemlastuseddate
MDItemRef _Nullable MDItemCreate(CFAllocatorRef _Nullable allocator, CFStringRef path) CF_RETURNS_RETAINED;  // mditemcreate(_:_:)
CFTypeRef _Nullable MDItemCopyAttribute(MDItemRef item, CFStringRef name) CF_RETURNS_RETAINED;               // mditemcopyattribute(_:_:)

CF_ASSUME_NONNULL_END
}
