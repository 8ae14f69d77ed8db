#pragma once

#include <QString>

#include <optional>

namespace Kelvane {

/// Which application an image in the window shows. It travels as the end of an image URL, so that any identifier and
/// any name survive. A plain value.
struct IconAddress {
    /// Empty for what is no application.
    QString bundleID;
    /// What the drawn stand-in takes its initial from.
    QString name;
    /// Where the bundle lies; empty when its identifier is to be looked up.
    QString path;

    bool operator==(const IconAddress&) const = default;

    /// The source of an image that shows it.
    QString url() const;
    /// Takes what follows the provider's name in `url`.
    static std::optional<IconAddress> parse(const QString& text);
};

} // namespace Kelvane
