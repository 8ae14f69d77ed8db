#pragma once

#include <CoreFoundation/CoreFoundation.h>

#include <utility>

namespace Platform {

/// Owns one reference to a CoreFoundation object, as every Create and Copy function hands it out, and releases it once.
/// It may hold nothing. Not a way to keep what a Get function gave. As safe to share between threads as the object.
template <typename Reference>
class Owner {
public:
    Owner() = default;
    /// Takes over the reference that a Create or Copy function gave.
    explicit Owner(Reference adopted)
        : m_reference(adopted) {}
    ~Owner() {
        if (m_reference != nullptr)
            CFRelease(m_reference);
    }
    Owner(Owner&& other) noexcept
        : m_reference(std::exchange(other.m_reference, nullptr)) {}
    Owner& operator=(Owner&& other) noexcept {
        std::swap(m_reference, other.m_reference);
        return *this;
    }
    Owner(const Owner&) = delete;
    Owner& operator=(const Owner&) = delete;

    explicit operator bool() const { return m_reference != nullptr; }
    /// Borrows the reference; null when nothing is held. It is good for as long as this owner is.
    Reference borrow() const { return m_reference; }

private:
    Reference m_reference = nullptr;
};

} // namespace Platform
