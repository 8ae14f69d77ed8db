#pragma once

#include <QString>

#include <optional>

namespace DockCore {

/// What the computer knows of application bundles. Any thread may call it, several at a time.
class Bundles {
public:
    virtual ~Bundles() = default;

    /// The bundle identifier of the bundle at `path`; nothing when it is no readable bundle or has none.
    virtual std::optional<QString> identifier(const QString& path) = 0;
    /// The name a person sees for the file at `path`; never empty for a path that has a last component.
    virtual QString displayName(const QString& path) = 0;
    /// The path of the application with this bundle identifier, wherever the computer knows it to be.
    virtual std::optional<QString> path(const QString& identifier) = 0;
    /// Somebody has shown the application at `path`: from now on `path` knows it by its identifier, also in processes
    /// to come.
    virtual void remember(const QString& path) = 0;
};

} // namespace DockCore
