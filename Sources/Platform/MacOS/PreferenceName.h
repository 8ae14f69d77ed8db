#pragma once

#include "Platform/MacOS/Values.h"

namespace Platform {

/// A name that the preferences functions take. Those functions take a key and a domain as two strings of one type; here
/// they are two types, so that the compiler sees when they are swapped. Immutable; any thread.
template <typename Role>
class PreferenceName {
public:
    explicit PreferenceName(const QString& name)
        : m_name(makeString(name)) {}
    CFStringRef borrow() const { return m_name.borrow(); }

private:
    Owner<CFStringRef> m_name;
};

using PreferenceKey = PreferenceName<struct KeyRole>;
using PreferenceDomain = PreferenceName<struct DomainRole>;

} // namespace Platform
