#pragma once

#include <QString>

#include <optional>

namespace Kelvane {

/// Whether the application opens when the user logs in. Main thread only.
class LoginItem {
public:
    virtual ~LoginItem() = default;

    /// What the system says now, never what was last asked for.
    virtual bool isEnabled() = 0;
    /// Turns it on or off; gives the system's reason when it refuses, nothing when it did as asked.
    virtual std::optional<QString> setEnabled(bool enabled) = 0;
};

} // namespace Kelvane
