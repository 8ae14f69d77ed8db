#pragma once

#include <QRect>

#include <optional>

namespace DockCore {
class Paths;
}

namespace Kelvane {

/// Where the main window was when it was last closed, in the file "window.json" of the support folder:
/// { "height", "width", "x", "y" }, in points of the desktop. A file that cannot be read counts as none.
namespace WindowFrame {

std::optional<QRect> load(const DockCore::Paths& paths);
/// A failed write is ignored: the window then opens where it opened before.
void save(const QRect& frame, const DockCore::Paths& paths);

} // namespace WindowFrame
} // namespace Kelvane
