#pragma once

#include <QImage>

#ifndef __OBJC__
#error "Only for Objective-C++"
#endif

#import <AppKit/AppKit.h>

namespace MacOS {

/// Draws `image` into a square of `size` points at `scale` pixels a point; null when the system has no memory for it.
/// Any thread.
QImage draw(NSImage* _Nonnull image, int size, int scale);

} // namespace MacOS
