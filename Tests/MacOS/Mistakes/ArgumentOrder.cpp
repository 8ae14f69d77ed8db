// must be found: implicit conversion changes signedness
#include <CoreGraphics/CoreGraphics.h>

double argumentOrder();
double argumentOrder() {
    return CGEventSourceSecondsSinceLastEventType(kCGAnyInputEventType, kCGEventSourceStateCombinedSessionState);
}
