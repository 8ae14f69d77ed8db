#pragma once

#include "Kelvane/Ports/LoginItem.h"

namespace MacOS {

/// The application itself as a login item of the system's service management. Main thread only.
class LoginItem final : public Kelvane::LoginItem {
public:
    bool isEnabled() override;
    std::optional<QString> setEnabled(bool enabled) override;
};

} // namespace MacOS
