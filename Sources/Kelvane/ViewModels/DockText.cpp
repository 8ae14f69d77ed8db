#include "Kelvane/ViewModels/DockText.h"

#include "Kelvane/Counted.h"

namespace Kelvane {

using namespace Qt::StringLiterals;
using DockCore::UsageWindow;

QString DockText::suggestion(qint64 pinnedApps, qint64 adaptiveSlots, UsageWindow window) {
    // "apps" even for one place.
    const QString usage =
        u"the "_s + QString::number(adaptiveSlots) + u" apps you used most in the "_s + title(window).toLower();
    if (pinnedApps == 0)
        return u"Made of "_s + usage;
    return counted(pinnedApps, u"always-there app"_s) + u", then "_s + usage;
}

QString DockText::data(int trackedDays, UsageWindow window) {
    if (trackedDays == 0)
        return u"No tracked history yet, so suggestions use the days each app was opened, from macOS's own records. "
               u"They sharpen as Kelvane learns your week."_s;
    QString text = u"Based on "_s + counted(trackedDays, u"day"_s) + u" of tracked use"_s;
    if (trackedDays < days(window))
        text += u", topped up with macOS's record of when apps were opened"_s;
    return text + u". Everything stays on this Mac."_s;
}

QString DockText::count(qsizetype apps) {
    return counted(apps, u"app"_s) + u" in your Dock"_s;
}

QString DockText::leaving(const QStringList& names) {
    return names.isEmpty() ? QString() : u"Leaving: "_s + names.join(u", "_s);
}

} // namespace Kelvane
