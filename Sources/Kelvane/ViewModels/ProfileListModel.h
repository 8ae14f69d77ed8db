#pragma once

#include "DockCore/Profile.h"
#include "Kelvane/ViewModels/RowListModel.h"

namespace Kelvane {

/// One profile of the list.
struct ProfileListRow {
    QUuid id;
    QString name;
    QString symbol;
    /// Tells a name apart from the same name above it, as "2"; empty for the first of its name.
    QString ordinal;
    /// Name and ordinal in one.
    QString title;
    bool isActive = false;

    bool operator==(const ProfileListRow&) const = default;
    QString key() const { return id.toString(); }
};

/// The profiles in the user's order.
class ProfileListModel : public RowListModel<ProfileListRow> {
    Q_OBJECT

public:
    enum Role { idRole = Qt::UserRole + 1, nameRole, symbolRole, ordinalRole, titleRole, isActiveRole };

    using RowListModel::RowListModel;

    /// One row a profile; a name without letters is called "Untitled".
    static QList<ProfileListRow> listed(const QList<DockCore::Profile>& profiles, const QUuid& active);
    void setProfiles(const QList<DockCore::Profile>& profiles, const QUuid& active);
    QHash<int, QByteArray> roleNames() const override;

protected:
    QVariant value(const ProfileListRow& row, int role) const override;
};

} // namespace Kelvane
