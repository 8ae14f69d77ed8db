#pragma once

#include "DockCore/Ports/Metadata.h"

namespace Platform {

/// macOS metadata as it travels on other file systems: extended attributes of the file, each a binary property list.
/// Keeps nothing; any thread may call it.
class LinuxMetadata final : public DockCore::Metadata {
public:
    /// Nothing when there is no file at `path`. On a file system without extended attributes every file has an empty
    /// record.
    std::optional<Item> item(const QString& path) override;
};

} // namespace Platform
