#pragma once

// One declaration a line, each with its source; that is why these lines are long.

#include <Foundation/Foundation.h>

// Every path below starts with "quartzcore/".
CF_ASSUME_NONNULL_BEGIN

@interface CALayer : NSObject                                               // calayer
@property(nullable, readonly) CALayer* superlayer;                          // calayer/superlayer
@property(nullable, strong) id contents;                                    // calayer/contents
@property CGRect frame;                                                     // calayer/frame
- (void)insertSublayer:(CALayer*)layer above:(nullable CALayer*)sibling;    // calayer/insertsublayer(_:above:)
- (void)removeFromSuperlayer;                                               // calayer/removefromsuperlayer()
- (void)renderInContext:(CGContextRef)context;                              // calayer/render(in:)
@end

CF_ASSUME_NONNULL_END
