#pragma once

// One declaration a line, each with its source; that is why these lines are long.

#include <Foundation/Foundation.h>

// Every path below starts with "servicemanagement/".
CF_ASSUME_NONNULL_BEGIN

typedef NSInteger SMAppServiceStatus;                                // smappservice/status-swift.enum
constexpr SMAppServiceStatus SMAppServiceStatusEnabled = 1;          // smappservice/status-swift.enum/enabled

API_AVAILABLE(macos(13.0)) @interface SMAppService : NSObject        // smappservice
@property(class, readonly) SMAppService* mainAppService;             // smappservice/mainapp
@property(readonly) SMAppServiceStatus status;                       // smappservice/status-swift.property
- (BOOL)registerAndReturnError:(NSError* _Nullable __autoreleasing* _Nullable)error;    // smappservice/register()
- (BOOL)unregisterAndReturnError:(NSError* _Nullable __autoreleasing* _Nullable)error;  // smappservice/unregister()
@end

CF_ASSUME_NONNULL_END
