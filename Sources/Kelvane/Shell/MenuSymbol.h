#pragma once

#include <QIcon>
#include <QString>

namespace Kelvane {

class Images;

/// Symbols as the status item and the menus show them: masks that take the colour of the text beside them.
namespace MenuSymbol {

/// The system's own image where it has one, else ours. `description` is what a screen reader says.
QIcon icon(Images& images, const QString& name, const QString& description = {});

} // namespace MenuSymbol
} // namespace Kelvane
