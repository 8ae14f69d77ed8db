#include "Platform/MacOS/LoginItem.h"

#import <ServiceManagement/ServiceManagement.h>

namespace MacOS {

bool LoginItem::isEnabled() {
    @autoreleasepool {
        return SMAppService.mainAppService.status == SMAppServiceStatusEnabled;
    }
}

std::optional<QString> LoginItem::setEnabled(bool enabled) {
    @autoreleasepool {
        SMAppService* service = SMAppService.mainAppService;
        NSError* error = nil;
        const BOOL done = enabled ? [service registerAndReturnError:&error] : [service unregisterAndReturnError:&error];
        if (done) {
            return std::nullopt;
        }
        return QString::fromNSString(error.localizedDescription);
    }
}

} // namespace MacOS
