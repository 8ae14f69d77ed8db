#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

#include <optional>

namespace Platform {

/// Images in the files that bundles carry as their icons. Any thread may call it.
namespace IconFile {

/// The image in `bytes`, `size` pixels wide and high: an ICNS container, an SVG drawing or any other image format.
/// Nothing for what is damaged or holds no image that can be read here.
std::optional<QImage> read(const QByteArray& bytes, int size);
/// The path of the icon file that the bundle names, or of the only one it has; nothing when there is none.
std::optional<QString> inBundle(const QString& bundle);

} // namespace IconFile
} // namespace Platform
