#pragma once

#include <QColor>
#include <QImage>
#include <QString>

namespace Kelvane {

/// Draws the symbols that this project brings along. Any thread may call it.
namespace SymbolImage {

/// Symbols are drawn in three stroke widths: for 15 points and more, for 12 to 14, and inside the change marks.
enum class Weight { regular, small, mark };

/// The symbol in one colour, `pixels` wide and high; a null image for a name that is none of ours. A symbol that was
/// not drawn in this weight comes in the regular one.
QImage tinted(const QString& name, Weight weight, int pixels, const QColor& tint);
/// A picture with colours of its own, such as "kelvane-mark".
QImage picture(const QString& name, int pixels);

} // namespace SymbolImage
} // namespace Kelvane
