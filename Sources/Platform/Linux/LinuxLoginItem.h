#pragma once

#include "Kelvane/Ports/LoginItem.h"

namespace Platform {

/// The login item as desktops on Linux know it: an entry in the user's autostart folder. It asks the file each time.
class LinuxLoginItem final : public Kelvane::LoginItem {
public:
    bool isEnabled() override;
    std::optional<QString> setEnabled(bool enabled) override;

    /// The entry's path, made by nobody but `setEnabled`.
    static QString path();
};

} // namespace Platform
