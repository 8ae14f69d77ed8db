#pragma once

#include <QColor>
#include <QImage>

#ifndef __OBJC__
#error "Only for Objective-C++"
#endif

#import <AppKit/AppKit.h>
#import <QuartzCore/QuartzCore.h>

namespace Platform {

/// Draws `image` into a square of `size` points at `scale` pixels a point; null when the system has no memory for it.
/// Any thread.
QImage draw(NSImage* _Nonnull image, int size, int scale);
/// Draws `layer`, which is of `size`, with all that lies on it at `scale` pixels a point, on `background`; null when
/// the system has no memory for it. Main thread only.
QImage draw(CALayer* _Nonnull layer, CGSize size, CGFloat scale, const QColor& background);

} // namespace Platform
