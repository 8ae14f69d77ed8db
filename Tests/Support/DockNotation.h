#pragma once

#include "DockCore/DockTile.h"

/// Docks in a line of text, one word a tile: "|" is a spacer, "_" a small one, "~" a flexible one, a word with a slash
/// the document at that path, "?" a tile of no known type, and every other word the identifier of an application.
namespace DockNotation {

QList<DockCore::DockTile> tiles(const QString& text);
/// The value that the Dock's preferences hold for these tiles.
DockCore::PropertyList apps(const QString& text);

} // namespace DockNotation
