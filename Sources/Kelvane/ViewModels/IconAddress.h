#pragma once

#include <QString>

#include <optional>

namespace Kelvane {

/// Which application an image in the window shows. It travels as the end of an image URL, so that any identifier and
/// any name survive. A plain value.
struct IconAddress {
    /// Empty for a tile that is no application.
    QString bundleID;
    /// The stand-in takes its initial from it.
    QString name;
    /// Path of the bundle; empty when its identifier is to be looked up.
    QString path;

    bool operator==(const IconAddress&) const = default;

    /// The source of an image that shows it.
    QString url() const;
    /// Takes the part of `url` after the provider's name.
    static std::optional<IconAddress> parse(const QString& text);
};

} // namespace Kelvane
