#include "Platform/MacOS/MacOSPreferences.h"

#include <utility>

namespace Platform {

namespace {

Owner<CFPropertyListRef> copyAppValue(const PreferenceKey& key, const PreferenceDomain& domain) {
    return Owner<CFPropertyListRef>(CFPreferencesCopyAppValue(key.borrow(), domain.borrow()));
}

/// Null removes the key.
void setAppValue(const PreferenceKey& key, CFPropertyListRef value, const PreferenceDomain& domain) {
    CFPreferencesSetAppValue(key.borrow(), value, domain.borrow());
}

} // namespace

MacOSPreferences::MacOSPreferences(const QString& domain)
    : m_domain(domain) {}

bool MacOSPreferences::synchronize() {
    const bool saved = CFPreferencesAppSynchronize(m_domain.borrow()) != 0;
    return !std::exchange(m_refusedValue, false) && saved;
}

std::optional<DockCore::PropertyList> MacOSPreferences::copyValue(const QString& key) {
    const Owner value = copyAppValue(PreferenceKey(key), m_domain);
    if (!value)
        return std::nullopt;
    return propertyList(value.borrow());
}

void MacOSPreferences::setValue(const QString& key, const std::optional<DockCore::PropertyList>& value) {
    if (!value) {
        setAppValue(PreferenceKey(key), nullptr, m_domain);
        return;
    }
    const Owner handedOver = makePropertyList(*value);
    // Null would remove the key: a value that cannot be written must leave the old one alone.
    if (!handedOver) {
        m_refusedValue = true;
        return;
    }
    setAppValue(PreferenceKey(key), handedOver.borrow(), m_domain);
}

} // namespace Platform
