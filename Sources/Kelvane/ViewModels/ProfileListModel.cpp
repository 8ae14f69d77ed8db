#include "Kelvane/ViewModels/ProfileListModel.h"

using namespace Qt::StringLiterals;

namespace Kelvane {

QList<ProfileListRow> ProfileListModel::listed(const QList<DockCore::Profile>& profiles, const QUuid& active) {
    QHash<QString, int> seen;
    QList<ProfileListRow> list;
    for (const DockCore::Profile& profile : profiles) {
        ProfileListRow row;
        row.id = profile.id;
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

void ProfileListModel::setProfiles(const QList<DockCore::Profile>& profiles, const QUuid& active) {
    setRows(listed(profiles, active));
}

QHash<int, QByteArray> ProfileListModel::roleNames() const {
    return {{idRole, "profileId"},    {nameRole, "name"},   {symbolRole, "symbol"},
            {ordinalRole, "ordinal"}, {titleRole, "title"}, {isActiveRole, "isActive"}};
}

QVariant ProfileListModel::value(const ProfileListRow& row, int role) const {
    switch (role) {
    case idRole:
        return DockCore::uuidString(row.id);
    case Qt::DisplayRole:
    case nameRole:
        return row.name;
    case symbolRole:
        return row.symbol;
    case ordinalRole:
        return row.ordinal;
    case titleRole:
        return row.title;
    case isActiveRole:
        return row.isActive;
    default:
        return {};
    }
}

} // namespace Kelvane
