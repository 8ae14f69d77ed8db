#pragma once

// One declaration a line, each with its source; that is why these lines are long.

#include <CoreFoundation/CoreFoundation.h>
#include <CoreGraphics/CoreGraphics.h>

#include <Availability.h>
#include <objc/objc.h>

// Every path below starts with "foundation/" unless it says otherwise.
CF_ASSUME_NONNULL_BEGIN

typedef long NSInteger;           // objectivec/nsinteger
typedef unsigned long NSUInteger; // objectivec/nsuinteger
typedef CGSize NSSize;            // nssize
typedef CGRect NSRect;            // nsrect

@class NSArray<ObjectType>, NSError, NSNotification, NSOperationQueue, NSString, NSURL;

@protocol NSObject                    // objectivec/nsobjectprotocol
- (BOOL)isKindOfClass:(Class)type;    // objectivec/nsobjectprotocol/iskind(of:)
- (BOOL)respondsToSelector:(SEL)name; // objectivec/nsobjectprotocol/responds(to:)
@end

__attribute__((objc_root_class)) @interface NSObject <NSObject> // objectivec/nsobject-swift.class
+ (instancetype)alloc;                                          // objectivec/nsobject-swift.class/alloc
- (instancetype)init;                                           // objectivec/nsobject-swift.class/init()
+ (Class)class;                                                 // objectivec/nsobject-swift.class/class
@end

typedef struct { // nsfastenumerationstate
    unsigned long state;
    id __unsafe_unretained _Nullable* _Nullable itemsPtr;
    unsigned long* _Nullable mutationsPtr;
    unsigned long extra[5];
} NSFastEnumerationState;

@protocol NSFastEnumeration // nsfastenumeration
- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState*)state
                                  objects:(id __unsafe_unretained _Nullable[_Nonnull])buffer
                                    count:(NSUInteger)length; // nsfastenumeration/countbyenumerating(with:objects:count:)
@end

@interface NSArray<__covariant ObjectType> : NSObject <NSFastEnumeration>                                        // nsarray
@property(readonly, nullable) ObjectType firstObject;                                                            // nsarray/firstobject
+ (instancetype)arrayWithObjects:(const ObjectType _Nonnull __unsafe_unretained[_Nullable])objects count:(NSUInteger)count; // nsarray/arraywithobjects:count:
@end

@interface NSDictionary<__covariant KeyType, __covariant ObjectType> : NSObject // nsdictionary
- (nullable ObjectType)objectForKeyedSubscript:(KeyType)key;                    // nsdictionary/objectforkeyedsubscript:
@end

@interface NSString : NSObject // nsstring
@end

@interface NSURL : NSObject                                                 // nsurl
@property(nullable, readonly, copy) NSString* path;                         // nsurl/path
+ (NSURL*)fileURLWithPath:(NSString*)path;                                  // nsurl/fileurl(withpath:)
+ (NSURL*)fileURLWithPath:(NSString*)path isDirectory:(BOOL)isDirectory;    // nsurl/fileurl(withpath:isdirectory:)
@end

@interface NSError : NSObject                              // nserror
@property(readonly, copy) NSString* localizedDescription;  // nserror/localizeddescription
@end

@interface NSBundle : NSObject                                   // bundle
- (nullable instancetype)initWithURL:(NSURL*)url;                // bundle/init(url:)
@property(nullable, readonly, copy) NSString* bundleIdentifier;  // bundle/bundleidentifier
@end

typedef NSUInteger NSSearchPathDirectory;                                    // filemanager/searchpathdirectory
constexpr NSSearchPathDirectory NSApplicationSupportDirectory = 14;          // filemanager/searchpathdirectory/applicationsupportdirectory
typedef NSUInteger NSSearchPathDomainMask;                                   // filemanager/searchpathdomainmask
constexpr NSSearchPathDomainMask NSUserDomainMask = 1;                       // filemanager/searchpathdomainmask/userdomainmask
typedef NSUInteger NSDirectoryEnumerationOptions;                            // filemanager/directoryenumerationoptions
constexpr NSDirectoryEnumerationOptions NSDirectoryEnumerationSkipsHiddenFiles = 4; // filemanager/directoryenumerationoptions/skipshiddenfiles
typedef NSString* NSURLResourceKey;                                          // urlresourcekey

@interface NSFileManager : NSObject                               // filemanager
@property(class, readonly, strong) NSFileManager* defaultManager; // filemanager/default
@property(readonly, copy) NSURL* homeDirectoryForCurrentUser API_AVAILABLE(macos(10.12)); // filemanager/homedirectoryforcurrentuser
- (NSString*)displayNameAtPath:(NSString*)path;                   // filemanager/displayname(atpath:)
- (NSArray<NSURL*>*)URLsForDirectory:(NSSearchPathDirectory)directory
                           inDomains:(NSSearchPathDomainMask)domains; // filemanager/urls(for:in:)
- (nullable NSArray<NSURL*>*)contentsOfDirectoryAtURL:(NSURL*)url
                           includingPropertiesForKeys:(nullable NSArray<NSURLResourceKey>*)keys
                                              options:(NSDirectoryEnumerationOptions)options
                                                error:(NSError* _Nullable __autoreleasing* _Nullable)error; // filemanager/contentsofdirectory(at:includingpropertiesforkeys:options:)
@end

typedef NSString* NSNotificationName; // nsnotification/name

@interface NSNotification : NSObject                        // nsnotification
@property(nullable, readonly, copy) NSDictionary* userInfo; // nsnotification/userinfo
@end

@interface NSOperationQueue : NSObject                       // operationqueue
@property(class, readonly, strong) NSOperationQueue* mainQueue; // operationqueue/main
@end

@interface NSNotificationCenter : NSObject // notificationcenter
- (id<NSObject>)addObserverForName:(nullable NSNotificationName)name
                            object:(nullable id)object
                             queue:(nullable NSOperationQueue*)queue
                        usingBlock:(void (^)(NSNotification* notification))block; // notificationcenter/addobserver(forname:object:queue:using:)
- (void)removeObserver:(id)observer;                                              // notificationcenter/removeobserver(_:)
@end

@interface NSDistributedNotificationCenter : NSNotificationCenter // distributednotificationcenter
+ (NSDistributedNotificationCenter*)defaultCenter;                // distributednotificationcenter/default()
@end

typedef struct { // operatingsystemversion
    NSInteger majorVersion;
    NSInteger minorVersion;
    NSInteger patchVersion;
} NSOperatingSystemVersion;

@interface NSProcessInfo : NSObject                               // processinfo
@property(class, readonly, strong) NSProcessInfo* processInfo;    // processinfo/processinfo
@property(readonly, copy) NSString* operatingSystemVersionString; // processinfo/operatingsystemversionstring
@end


CF_ASSUME_NONNULL_END
