// must be found: no matching function for call to 'copyAppValue'
#include "Platform/MacOS/PreferenceName.h"

namespace {
MacOS::Owner<CFPropertyListRef> copyAppValue(const MacOS::PreferenceKey& key, const MacOS::PreferenceDomain& domain) {
    return MacOS::Owner<CFPropertyListRef>(CFPreferencesCopyAppValue(key.borrow(), domain.borrow()));
}
} // namespace

bool swapped();
bool swapped() {
    const MacOS::PreferenceKey key(QStringLiteral("show-recents"));
    const MacOS::PreferenceDomain domain(QStringLiteral("com.apple.dock"));
    return static_cast<bool>(copyAppValue(domain, key));
}
