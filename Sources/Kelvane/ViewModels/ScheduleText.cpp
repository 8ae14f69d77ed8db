#include "Kelvane/ViewModels/ScheduleText.h"

namespace Kelvane::ScheduleText {

QStringList titles() {
    QStringList result;
    for (const DockCore::AutoUpdate interval : DockCore::allAutoUpdates())
        result += DockCore::title(interval);
    return result;
}

int index(DockCore::AutoUpdate interval) {
    return static_cast<int>(DockCore::allAutoUpdates().indexOf(interval));
}

} // namespace Kelvane::ScheduleText
