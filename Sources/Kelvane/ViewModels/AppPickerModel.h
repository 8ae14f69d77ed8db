#pragma once

#include "DockCore/AppInfo.h"
#include "Kelvane/ViewModels/RowListModel.h"

#include <QStringList>

namespace Kelvane {

/// One application that can be picked.
struct AppPickerRow {
    QString section;
    QString bundleID;
    QString name;
    /// Already in the list that is being added to.
    bool isAdded = false;

    bool operator==(const AppPickerRow&) const = default;
    QString key() const { return section + QChar(u'\n') + bundleID; }
};

/// The applications to pick from: the most used ones, then all that are installed by name. A search narrows both and
/// shows no application twice.
class AppPickerModel : public RowListModel<AppPickerRow> {
    Q_OBJECT

public:
    enum Role { sectionRole = Qt::UserRole + 1, bundleIDRole, nameRole, isAddedRole };

    static constexpr qsizetype mostUsedCount = 8;

    using RowListModel::RowListModel;

    /// `ranked` and `installed` are the candidates in their order, `added` the identifiers to mark.
    void setApps(const QList<DockCore::AppInfo>& ranked, const QList<DockCore::AppInfo>& installed,
                 const QStringList& added, const QString& search);
    QHash<int, QByteArray> roleNames() const override;

protected:
    QVariant value(const AppPickerRow& row, int role) const override;
};

} // namespace Kelvane
