#pragma once

#include "DockCore/Settings.h"

#include <QStringList>

namespace Kelvane {

/// The choices of how often the Dock is reorganized, as two views list them: by title, in their order.
namespace ScheduleText {

QStringList titles();
int index(DockCore::AutoUpdate interval);

} // namespace ScheduleText
} // namespace Kelvane
