#pragma once

#include "DockCore/Ports/Metadata.h"

namespace Platform {

/// The record that the system's metadata index keeps of a file. It knows nothing where indexing is off.
/// Any thread may call it, several at a time.
class MacOSMetadata final : public DockCore::Metadata {
public:
    std::optional<Item> item(const QString& path) override;
};

} // namespace Platform
