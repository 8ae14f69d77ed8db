#pragma once

#include "DockCore/DockTile.h"
#include "DockCore/UsageWindow.h"

#include <QString>
#include <QStringList>

namespace Kelvane {

/// The sentences of the Dock pane, each from plain values.
namespace DockText {

/// What the suggestion is made of, from the number of always-there apps that are installed and of places for usage.
QString suggestion(qint64 pinnedApps, qint64 adaptiveSlots, DockCore::UsageWindow window);
/// What the suggestion rests on, from the number of tracked days of the window.
QString data(int trackedDays, DockCore::UsageWindow window);
/// "14 apps in your Dock".
QString count(qsizetype apps);
/// The names of what would leave; empty when nothing does.
QString leaving(const QStringList& names);

} // namespace DockText
} // namespace Kelvane
