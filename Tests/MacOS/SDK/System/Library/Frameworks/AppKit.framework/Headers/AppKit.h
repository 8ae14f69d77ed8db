#pragma once

// One declaration a line, each with its source; that is why these lines are long.

#include <Foundation/Foundation.h>

// Every path below starts with "appkit/".
CF_ASSUME_NONNULL_BEGIN

@class CALayer, NSAppearance, NSImage, NSScreen, NSWindow;

typedef NSString* NSAppearanceName;                                              // nsappearance/name-swift.struct
extern "C" NSAppearanceName const NSAppearanceNameAqua API_AVAILABLE(macos(10.9));         // nsappearance/name-swift.struct/aqua
extern "C" NSAppearanceName const NSAppearanceNameDarkAqua API_AVAILABLE(macos(10.14));    // nsappearance/name-swift.struct/darkaqua

@interface NSAppearance : NSObject                                  // nsappearance
+ (nullable NSAppearance*)appearanceNamed:(NSAppearanceName)name;   // nsappearance/init(named:)
@end

typedef NSInteger NSApplicationActivationPolicy;                                          // nsapplication/activationpolicy-swift.enum
constexpr NSApplicationActivationPolicy NSApplicationActivationPolicyRegular = 0;         // nsapplication/activationpolicy-swift.enum/regular
constexpr NSApplicationActivationPolicy NSApplicationActivationPolicyAccessory = 1;       // nsapplication/activationpolicy-swift.enum/accessory

@interface NSApplication : NSObject                                             // nsapplication
@property(class, readonly, strong) NSApplication* sharedApplication;            // nsapplication/shared
@property(nullable, strong) NSAppearance* appearance API_AVAILABLE(macos(10.14)); // nsapplication/appearance
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)policy;              // nsapplication/setactivationpolicy(_:)
- (void)activate API_AVAILABLE(macos(14.0));                                    // nsapplication/activate()
- (void)activateIgnoringOtherApps:(BOOL)ignoringOthers;                         // nsapplication/activate(ignoringotherapps:)
- (void)orderFrontStandardAboutPanel:(nullable id)sender;                       // nsapplication/orderfrontstandardaboutpanel(_:)
@end

@interface NSRunningApplication : NSObject                             // nsrunningapplication
@property(readonly) NSApplicationActivationPolicy activationPolicy;    // nsrunningapplication/activationpolicy
@property(nullable, readonly, copy) NSString* bundleIdentifier;        // nsrunningapplication/bundleidentifier
@property(nullable, readonly, copy) NSString* localizedName;           // nsrunningapplication/localizedname
@end

extern "C" NSNotificationName const NSWorkspaceDidActivateApplicationNotification API_AVAILABLE(macos(10.6)); // nsworkspace/didactivateapplicationnotification
extern "C" NSNotificationName const NSWorkspaceScreensDidSleepNotification API_AVAILABLE(macos(10.6));        // nsworkspace/screensdidsleepnotification
extern "C" NSNotificationName const NSWorkspaceScreensDidWakeNotification API_AVAILABLE(macos(10.6));         // nsworkspace/screensdidwakenotification
extern "C" NSNotificationName const NSWorkspaceWillSleepNotification;                                         // nsworkspace/willsleepnotification
extern "C" NSNotificationName const NSWorkspaceDidWakeNotification;                                           // nsworkspace/didwakenotification
extern "C" NSNotificationName const NSWorkspaceSessionDidResignActiveNotification;                            // nsworkspace/sessiondidresignactivenotification
extern "C" NSNotificationName const NSWorkspaceSessionDidBecomeActiveNotification;                            // nsworkspace/sessiondidbecomeactivenotification
extern "C" NSNotificationName const NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification API_AVAILABLE(macos(10.10)); // nsworkspace/accessibilitydisplayoptionsdidchangenotification
extern "C" NSString* const NSWorkspaceApplicationKey API_AVAILABLE(macos(10.6));                              // nsworkspace/applicationuserinfokey

@interface NSWorkspace : NSObject                                                            // nsworkspace
@property(class, readonly, strong) NSWorkspace* sharedWorkspace;                             // nsworkspace/shared
@property(readonly, strong) NSNotificationCenter* notificationCenter;                        // nsworkspace/notificationcenter
@property(readonly) BOOL accessibilityDisplayShouldReduceMotion API_AVAILABLE(macos(10.12)); // nsworkspace/accessibilitydisplayshouldreducemotion
@property(nullable, readonly, strong) NSRunningApplication* frontmostApplication;            // nsworkspace/frontmostapplication
- (nullable NSURL*)URLForApplicationWithBundleIdentifier:(NSString*)bundleIdentifier;        // nsworkspace/urlforapplication(withbundleidentifier:)
- (NSImage*)iconForFile:(NSString*)path;                                                     // nsworkspace/icon(forfile:)
- (void)activateFileViewerSelectingURLs:(NSArray<NSURL*>*)urls;                              // nsworkspace/activatefileviewerselecting(_:)
@end

typedef NSInteger NSCompositingOperation;                            // nscompositingoperation
constexpr NSCompositingOperation NSCompositingOperationSourceOver = 2; // nscompositingoperation/sourceover
typedef CGFloat NSFontWeight;                                        // nsfont/weight
extern "C" NSFontWeight const NSFontWeightRegular API_AVAILABLE(macos(10.11)); // nsfont/weight/regular

API_AVAILABLE(macos(11.0)) @interface NSImageSymbolConfiguration : NSObject                           // nsimage/symbolconfiguration-swift.class
+ (instancetype)configurationWithPointSize:(CGFloat)pointSize weight:(NSFontWeight)weight;                 // nsimage/symbolconfiguration-swift.class/init(pointsize:weight:)
@end

@interface NSImage : NSObject // nsimage
+ (nullable instancetype)imageWithSystemSymbolName:(NSString*)symbolName
                          accessibilityDescription:(nullable NSString*)description API_AVAILABLE(macos(11.0)); // nsimage/init(systemsymbolname:accessibilitydescription:)
- (nullable NSImage*)imageWithSymbolConfiguration:(NSImageSymbolConfiguration*)configuration
    API_AVAILABLE(macos(11.0));                                      // nsimage/withsymbolconfiguration(_:)
@property(readonly) NSSize size;                                     // nsimage/size
- (void)drawInRect:(NSRect)target
          fromRect:(NSRect)source
         operation:(NSCompositingOperation)operation
          fraction:(CGFloat)fraction; // nsimage/draw(in:from:operation:fraction:)
@end

@interface NSGraphicsContext : NSObject                                                       // nsgraphicscontext
@property(class, strong, nullable) NSGraphicsContext* currentContext;                         // nsgraphicscontext/current
+ (NSGraphicsContext*)graphicsContextWithCGContext:(CGContextRef)context flipped:(BOOL)flipped; // nsgraphicscontext/init(cgcontext:flipped:)
+ (void)saveGraphicsState;                                                                    // nsgraphicscontext/savegraphicsstate()-swift.type.method
+ (void)restoreGraphicsState;                                                                 // nsgraphicscontext/restoregraphicsstate()-swift.type.method
@end

@interface NSView : NSObject                                    // nsview
@property(nullable, readonly, unsafe_unretained) NSWindow* window; // nsview/window
@property(nullable, readonly, unsafe_unretained) NSView* superview; // nsview/superview
@property NSRect bounds;                                        // nsview/bounds
@property(nullable, strong) CALayer* layer;                     // nsview/layer
@end

typedef NSUInteger NSWindowStyleMask;                                              // nswindow/stylemask-swift.struct
constexpr NSWindowStyleMask NSWindowStyleMaskFullSizeContentView = 1u << 15u;      // nswindow/stylemask-swift.struct/fullsizecontentview
typedef NSInteger NSWindowToolbarStyle;                                            // nswindow/toolbarstyle-swift.enum
constexpr NSWindowToolbarStyle NSWindowToolbarStyleUnified = 3;                    // nswindow/toolbarstyle-swift.enum/unified

@interface NSWindow : NSObject                                                     // nswindow
@property NSWindowStyleMask styleMask;                                             // nswindow/stylemask-swift.property
@property BOOL titlebarAppearsTransparent API_AVAILABLE(macos(10.10));             // nswindow/titlebarappearstransparent
@property NSWindowToolbarStyle toolbarStyle API_AVAILABLE(macos(11.0));            // nswindow/toolbarstyle-swift.property
@property(nullable, readonly, strong) NSScreen* screen;                            // nswindow/screen
@property(readonly) CGFloat backingScaleFactor;                                    // nswindow/backingscalefactor
- (void)setContentSize:(NSSize)size;                                                // nswindow/setcontentsize(_:)
- (BOOL)setFrameUsingName:(NSString*)name;                                         // nswindow/setframeusingname(_:)
- (BOOL)setFrameAutosaveName:(NSString*)name;                                      // nswindow/setframeautosavename(_:)
@end

CF_ASSUME_NONNULL_END
