#pragma once

#include "DockCore/Profile.h"
#include "Kelvane/ViewModels/RowListModel.h"

namespace Kelvane {

/// One profile to start with.
struct ChoiceRow {
    QUuid id;
    QString name;
    QString symbol;
    /// "With 8 apps by usage · Last 7 days".
    QString line;
    /// The first applications of what the profile would make of the Dock.
    QStringList bundleIDs;
    /// The sources of their icons.
    QStringList icons;
    bool isChosen = false;

    bool operator==(const ChoiceRow&) const = default;
    QString key() const { return id.toString(); }
};

/// The profiles of the first run's choice.
class ChoiceListModel : public RowListModel<ChoiceRow> {
    Q_OBJECT

public:
    enum Role { idRole = Qt::UserRole + 1, nameRole, symbolRole, lineRole, iconsRole, isChosenRole };

    using RowListModel::RowListModel;

    void setChoices(const QList<ChoiceRow>& choices) { setRows(choices); }
    /// How many applications a profile fills in by usage, and over which window.
    static QString line(const DockCore::Profile& profile);
    QHash<int, QByteArray> roleNames() const override;

protected:
    QVariant value(const ChoiceRow& row, int role) const override;
};

} // namespace Kelvane
