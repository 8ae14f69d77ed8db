#include "Kelvane/ViewModels/ProfileListRow.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace Kelvane {

QList<ProfileListRow> ProfileListRow::listed(const QList<DockCore::Profile>& profiles, const QUuid& active) {
    QHash<QString, int> seen;
    QList<ProfileListRow> list;
    for (const DockCore::Profile& profile : profiles) {
        ProfileListRow row;
        row.profileId = DockCore::uuidString(profile.id);
        row.name = profile.name.trimmed().isEmpty() ? u"Untitled"_s : profile.name;
        row.symbol = profile.symbol;
        const int count = ++seen[row.name];
        row.ordinal = count > 1 ? QString::number(count) : QString();
        row.title = row.ordinal.isEmpty() ? row.name : row.name + u' ' + row.ordinal;
        row.isActive = profile.id == active;
        list += row;
    }
    return list;
}

} // namespace Kelvane
