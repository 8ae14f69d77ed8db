#pragma once

#include "DockCore/Storage/PropertyList.h"

#include <optional>

namespace DockCore {

/// The Dock's preferences domain on this computer: one value a key, read and written whole.
/// It knows nothing of what the values mean. Any thread may call it, one at a time.
class Preferences {
public:
    virtual ~Preferences() = default;

    /// Flushes what was set and reloads what others changed; false when the values set could not be saved.
    virtual bool synchronize() = 0;
    /// The value set under `key`, else the one stored there at the last `synchronize`, or nothing.
    virtual std::optional<PropertyList> copyValue(const QString& key) = 0;
    /// Sets the value under `key`, or removes the key when `value` is absent. Kept in memory until `synchronize`.
    virtual void setValue(const QString& key, const std::optional<PropertyList>& value) = 0;
};

} // namespace DockCore
