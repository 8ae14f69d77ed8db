#pragma once

#include "DockCore/DockTile.h"
#include "DockCore/UsageWindow.h"

#include <QString>
#include <QStringList>

namespace Kelvane {

/// The sentences of the Dock pane, each from plain values.
namespace DockText {

/// The parts of the suggestion, from the number of installed always-there apps and of places for usage.
QString suggestion(qint64 pinnedApps, qint64 adaptiveSlots, DockCore::UsageWindow window);
/// The data behind the suggestion, from the number of tracked days of the window.
QString data(int trackedDays, DockCore::UsageWindow window);
/// "14 apps in your Dock".
QString count(qsizetype apps);
/// The names of the apps that would leave; empty when there are none.
QString leaving(const QStringList& names);

} // namespace DockText
} // namespace Kelvane
