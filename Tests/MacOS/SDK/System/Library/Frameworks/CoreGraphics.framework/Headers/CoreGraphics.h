#pragma once

// One declaration a line, each with its source; that is why these lines are long.

#include <CoreFoundation/CoreFoundation.h>

#include <Availability.h>

#include <cstddef>

// Every path below starts with "coregraphics/".
extern "C" {
CF_ASSUME_NONNULL_BEGIN

typedef double CGFloat; // cgfloat
struct CGPoint {        // cgpoint
    CGFloat x;
    CGFloat y;
};
struct CGSize { // cgsize
    CGFloat width;
    CGFloat height;
};
struct CGRect { // cgrect
    CGPoint origin;
    CGSize size;
};
typedef struct CGPoint CGPoint; // cgpoint
typedef struct CGSize CGSize;   // cgsize
typedef struct CGRect CGRect;   // cgrect

typedef struct CGColorSpace* CGColorSpaceRef; // cgcolorspace
typedef struct CGContext* CGContextRef;       // cgcontext
typedef struct CGImage* CGImageRef;           // cgimage

extern const CFStringRef kCGColorSpaceSRGB API_AVAILABLE(macos(10.5));                                          // cgcolorspace/srgb
CGColorSpaceRef _Nullable CGColorSpaceCreateWithName(CFStringRef name) CF_RETURNS_RETAINED;                     // cgcolorspace/init(name:)

typedef std::uint32_t CGBitmapInfo;                            // cgbitmapinfo
constexpr CGBitmapInfo kCGImageAlphaPremultipliedFirst = 2;    // cgimagealphainfo/premultipliedfirst
constexpr CGBitmapInfo kCGBitmapByteOrder32Host = 2u << 12u;   // cgbitmapinfo/byteorder32little
CGContextRef _Nullable CGBitmapContextCreate(void* _Nullable data, std::size_t width, std::size_t height,
                                             std::size_t bitsPerComponent, std::size_t bytesPerRow,
                                             CGColorSpaceRef _Nullable space, CGBitmapInfo bitmapInfo) CF_RETURNS_RETAINED; // cgcontext/init(data:width:height:bitspercomponent:bytesperrow:space:bitmapinfo:)
void CGContextScaleCTM(CGContextRef context, CGFloat x, CGFloat y); // cgcontext/scaleby(x:y:)

typedef std::int32_t CGEventSourceStateID;                                     // cgeventsourcestateid
constexpr CGEventSourceStateID kCGEventSourceStateCombinedSessionState = 0;    // cgeventsourcestateid/combinedsessionstate
typedef std::uint32_t CGEventType;                                             // cgeventtype
constexpr CGEventType kCGAnyInputEventType = ~CGEventType(0);                  // kcganyinputeventtype
CFTimeInterval CGEventSourceSecondsSinceLastEventType(CGEventSourceStateID state, CGEventType type) API_AVAILABLE(macos(10.4)); // cgeventsource/secondssincelasteventtype(_:eventtype:)

CF_ASSUME_NONNULL_END
}
