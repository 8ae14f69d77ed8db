#include "Platform/MacOS/MacOSLoginItem.h"

#import <ServiceManagement/ServiceManagement.h>

namespace Platform {

bool MacOSLoginItem::isEnabled() {
    @autoreleasepool {
        return SMAppService.mainAppService.status == SMAppServiceStatusEnabled;
    }
}

std::optional<QString> MacOSLoginItem::setEnabled(bool enabled) {
    @autoreleasepool {
        SMAppService* service = SMAppService.mainAppService;
        NSError* error = nil;
        const BOOL done = enabled ? [service registerAndReturnError:&error] : [service unregisterAndReturnError:&error];
        if (done)
            return std::nullopt;
        return QString::fromNSString(error.localizedDescription);
    }
}

} // namespace Platform
