#pragma once

#include "DockCore/Ranker.h"
#include "Kelvane/ViewModels/RowListModel.h"

namespace Kelvane {

/// One ranked application as the usage pane shows it.
struct RankingRow {
    int rank = 0;
    QString bundleID;
    QString name;
    QString detail;
    /// Why it stands where it stands.
    QString reason;
    /// Detail and reason in one, for reading out.
    QString description;
    /// Its score in proportion to the best one, 0 to 1.
    double share = 0;

    bool operator==(const RankingRow&) const = default;
    QString key() const { return bundleID; }
};

/// A ranking, best first.
class RankingModel : public RowListModel<RankingRow> {
    Q_OBJECT

public:
    enum Role {
        rankRole = Qt::UserRole + 1,
        bundleIDRole,
        nameRole,
        detailRole,
        reasonRole,
        descriptionRole,
        shareRole
    };

    using RowListModel::RowListModel;

    void setRanking(const QList<DockCore::AppScore>& ranking, DockCore::UsageWindow window);
    QHash<int, QByteArray> roleNames() const override;

protected:
    QVariant value(const RankingRow& row, int role) const override;
};

} // namespace Kelvane
