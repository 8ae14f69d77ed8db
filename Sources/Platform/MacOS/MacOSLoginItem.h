#pragma once

#include "Kelvane/Ports/LoginItem.h"

namespace Platform {

/// The application itself as a login item of the system's service management. Main thread only.
class MacOSLoginItem final : public Kelvane::LoginItem {
public:
    bool isEnabled() override;
    std::optional<QString> setEnabled(bool enabled) override;
};

} // namespace Platform
