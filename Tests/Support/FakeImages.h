#pragma once

#include "Kelvane/Ports/Images.h"

#include <QHash>

namespace Fakes {

/// A desktop's pictures: those it was given, and at first none. Change them while no thread asks.
class Images : public Kelvane::Images {
public:
    std::optional<QImage> applicationIcon(const QString& path, int size) override {
        const auto icon = icons.constFind(path);
        return icon == icons.cend() ? std::nullopt : std::optional(icon->scaled(size, size));
    }
    std::optional<QIcon> symbol(const QString& name, const QString&) override {
        const auto found = symbols.constFind(name);
        return found == symbols.cend() ? std::nullopt : std::optional(*found);
    }

    /// By the path of the bundle.
    QHash<QString, QImage> icons;
    QHash<QString, QIcon> symbols;
};

} // namespace Fakes
