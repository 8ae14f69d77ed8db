// must be found: no matching function for call to 'copyAppValue'
#include "Platform/MacOS/PreferenceName.h"

namespace {
Platform::Owner<CFPropertyListRef> copyAppValue(const Platform::PreferenceKey& key,
                                                const Platform::PreferenceDomain& domain) {
    return Platform::Owner<CFPropertyListRef>(CFPreferencesCopyAppValue(key.borrow(), domain.borrow()));
}
} // namespace

bool swapped();
bool swapped() {
    const Platform::PreferenceKey key(QStringLiteral("show-recents"));
    const Platform::PreferenceDomain domain(QStringLiteral("com.apple.dock"));
    return static_cast<bool>(copyAppValue(domain, key));
}
