#pragma once

#include "Kelvane/ViewModels/RowListModel.h"

#include <QStringList>

namespace Kelvane {

class AppNames;

/// One application of a profile's list.
struct AppListRow {
    QString bundleID;
    QString name;
    bool isInstalled = false;
    bool isFirst = false;
    bool isLast = false;

    bool operator==(const AppListRow&) const = default;
    QString key() const { return bundleID; }
};

/// The applications of one of a profile's lists, in its order; what is not installed stays in it.
class AppListModel : public RowListModel<AppListRow> {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role { bundleIDRole = Qt::UserRole + 1, nameRole, isInstalledRole, isFirstRole, isLastRole };

    using RowListModel::RowListModel;

    void setApps(const QStringList& bundleIDs, const AppNames& names);
    int count() const { return rowCount(); }
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

protected:
    QVariant value(const AppListRow& row, int role) const override;
};

} // namespace Kelvane
