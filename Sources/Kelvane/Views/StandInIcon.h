#pragma once

#include <QImage>
#include <QString>

namespace Kelvane {

/// The drawn icon of an application that has none: its initial on a colour that follows from its identifier.
/// Any thread may call it.
namespace StandInIcon {

QImage draw(const QString& identifier, const QString& name, int pixels);
/// The hue, from 0 to 359; the same for the same identifier on every machine.
int hue(const QString& identifier);
/// What a person reads as the first letter, in upper case; empty for a name without one.
QString initial(const QString& name);

} // namespace StandInIcon
} // namespace Kelvane
