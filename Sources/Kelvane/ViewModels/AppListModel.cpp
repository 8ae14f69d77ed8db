#include "Kelvane/ViewModels/AppListModel.h"

#include "Kelvane/ViewModels/AppNames.h"

namespace Kelvane {

void AppListModel::setApps(const QStringList& bundleIDs, const AppNames& names) {
    QList<AppListRow> apps;
    for (const QString& bundleID : bundleIDs) {
        AppListRow row;
        row.bundleID = bundleID;
        row.name = names.name(bundleID);
        row.isInstalled = names.isInstalled(bundleID);
        row.isFirst = apps.isEmpty();
        row.isLast = apps.size() + 1 == bundleIDs.size();
        apps += row;
    }
    const int before = rowCount();
    setRows(apps);
    if (rowCount() != before)
        Q_EMIT countChanged();
}

QHash<int, QByteArray> AppListModel::roleNames() const {
    return {{bundleIDRole, "bundleID"},
            {nameRole, "name"},
            {isInstalledRole, "isInstalled"},
            {isFirstRole, "isFirst"},
            {isLastRole, "isLast"}};
}

QVariant AppListModel::value(const AppListRow& row, int role) const {
    switch (role) {
    case bundleIDRole:
        return row.bundleID;
    case Qt::DisplayRole:
    case nameRole:
        return row.name;
    case isInstalledRole:
        return row.isInstalled;
    case isFirstRole:
        return row.isFirst;
    case isLastRole:
        return row.isLast;
    default:
        return {};
    }
}

} // namespace Kelvane
