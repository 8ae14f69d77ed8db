#pragma once

#include "Kelvane/Ports/LoginItem.h"

namespace Fakes {

/// A login item that remembers what it was told, and refuses when told to.
class LoginItem : public Kelvane::LoginItem {
public:
    bool isEnabled() override { return enabled; }
    std::optional<QString> setEnabled(bool wanted) override {
        if (!refusal)
            enabled = wanted;
        return refusal;
    }

    bool enabled = false;
    /// The reason it gives for refusing.
    std::optional<QString> refusal;
};

} // namespace Fakes
