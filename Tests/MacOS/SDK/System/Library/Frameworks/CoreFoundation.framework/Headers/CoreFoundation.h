#pragma once

// One declaration a line, each with its source; that is why these lines are long.

#include <cstdint>

// Every path below starts with "corefoundation/" unless it says otherwise.
#if defined(__clang__)
#pragma clang diagnostic ignored "-Wnullability-extension"
#define CF_ASSUME_NONNULL_BEGIN _Pragma("clang assume_nonnull begin")
#define CF_ASSUME_NONNULL_END _Pragma("clang assume_nonnull end")
#define CF_RETURNS_RETAINED __attribute__((cf_returns_retained))
#define CF_RETURNS_NOT_RETAINED __attribute__((cf_returns_not_retained))
#else
#define CF_ASSUME_NONNULL_BEGIN
#define CF_ASSUME_NONNULL_END
#define CF_RETURNS_RETAINED
#define CF_RETURNS_NOT_RETAINED
#define _Nullable
#define _Nonnull
#endif
#if defined(__clang__) && defined(__OBJC__)
#define CF_BRIDGED_TYPE(type) __attribute__((objc_bridge(type)))
#else
#define CF_BRIDGED_TYPE(type)
#endif

extern "C" {
CF_ASSUME_NONNULL_BEGIN

typedef unsigned char Boolean;                              // cftypes: from use (MacTypes.h)
typedef std::uint8_t UInt8;                                 // from use (MacTypes.h)
typedef std::uint16_t UniChar;                              // from use (MacTypes.h)
typedef std::uint32_t UInt32;                               // from use (MacTypes.h)
typedef long CFIndex;                                       // cfindex
typedef unsigned long CFTypeID;                             // cftypeid
typedef unsigned long CFOptionFlags;                        // cfoptionflags
typedef double CFTimeInterval;                              // cftimeinterval
typedef CFTimeInterval CFAbsoluteTime;                      // cfabsolutetime
typedef const void* CFTypeRef;                              // cftyperef
typedef CFTypeRef CFPropertyListRef;                        // cfpropertylist
typedef const struct __CFAllocator* CFAllocatorRef;         // cfallocator
typedef const struct CF_BRIDGED_TYPE(NSString) __CFString* CFStringRef; // cfstring
typedef const struct CF_BRIDGED_TYPE(NSData) __CFData* CFDataRef;       // cfdata
typedef const struct CF_BRIDGED_TYPE(NSDate) __CFDate* CFDateRef;       // cfdate
typedef const struct CF_BRIDGED_TYPE(NSArray) __CFArray* CFArrayRef;    // cfarray
typedef struct CF_BRIDGED_TYPE(NSError) __CFError* CFErrorRef;          // cferror

typedef CFIndex CFPropertyListFormat;                                      // cfpropertylistformat
constexpr CFPropertyListFormat kCFPropertyListBinaryFormat_v1_0 = 200;     // cfpropertylistformat/binaryformat_v1_0
constexpr CFOptionFlags kCFPropertyListImmutable = 0;                      // cfpropertylistmutabilityoptions

extern const CFAllocatorRef _Nullable kCFAllocatorDefault; // kcfallocatordefault

void CFRelease(CFTypeRef object);          // cfrelease(_:)
CFTypeID CFGetTypeID(CFTypeRef object);    // cfgettypeid(_:)

CFTypeID CFArrayGetTypeID(void);                                                                  // cfarraygettypeid()
CFIndex CFArrayGetCount(CFArrayRef array);                                                        // cfarraygetcount(_:)
const void* _Nullable CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index);                    // cfarraygetvalueatindex(_:_:)

CFTypeID CFDateGetTypeID(void);                                                                   // cfdategettypeid()
CFAbsoluteTime CFDateGetAbsoluteTime(CFDateRef date);                                             // cfdategetabsolutetime(_:)

CFDataRef _Nullable CFDataCreate(CFAllocatorRef _Nullable allocator, const UInt8* _Nullable bytes,
                                 CFIndex length) CF_RETURNS_RETAINED;                             // cfdatacreate(_:_:_:)
const UInt8* _Nullable CFDataGetBytePtr(CFDataRef data);                                          // cfdatagetbyteptr(_:)
CFIndex CFDataGetLength(CFDataRef data);                                                          // cfdatagetlength(_:)

CFStringRef _Nullable CFStringCreateWithCharacters(CFAllocatorRef _Nullable allocator, const UniChar* _Nullable characters,
                                                   CFIndex length) CF_RETURNS_RETAINED;           // cfstringcreatewithcharacters(_:_:_:)
#ifdef __APPLE__
#define CFSTR(text) (reinterpret_cast<CFStringRef>(__builtin___CFStringMakeConstantString("" text "")))
#else
CFStringRef __CFStringMakeConstantString(const char* text) CF_RETURNS_NOT_RETAINED; // from use (CFString.h, behind CFSTR)
#define CFSTR(text) __CFStringMakeConstantString("" text "")
#endif

CFDataRef _Nullable CFPropertyListCreateData(CFAllocatorRef _Nullable allocator, CFPropertyListRef propertyList,
                                             CFPropertyListFormat format, CFOptionFlags options,
                                             CFErrorRef _Nullable* _Nullable error) CF_RETURNS_RETAINED; // cfpropertylistcreatedata(_:_:_:_:_:)
CFPropertyListRef _Nullable CFPropertyListCreateWithData(CFAllocatorRef _Nullable allocator, CFDataRef data,
                                                         CFOptionFlags options, CFPropertyListFormat* _Nullable format,
                                                         CFErrorRef _Nullable* _Nullable error) CF_RETURNS_RETAINED; // cfpropertylistcreatewithdata(_:_:_:_:_:)

CFPropertyListRef _Nullable CFPreferencesCopyAppValue(CFStringRef key, CFStringRef applicationID) CF_RETURNS_RETAINED; // cfpreferencescopyappvalue(_:_:)
void CFPreferencesSetAppValue(CFStringRef key, CFPropertyListRef _Nullable value, CFStringRef applicationID); // cfpreferencessetappvalue(_:_:_:)
Boolean CFPreferencesAppSynchronize(CFStringRef applicationID);                                   // cfpreferencesappsynchronize(_:)

CF_ASSUME_NONNULL_END
}
