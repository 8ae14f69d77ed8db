#include "Kelvane/ViewModels/RankingModel.h"

#include "Kelvane/ViewModels/UsageText.h"

using namespace Qt::StringLiterals;

namespace Kelvane {

void RankingModel::setRanking(const QList<DockCore::AppScore>& ranking, DockCore::UsageWindow window) {
    QList<RankingRow> rows;
    for (const DockCore::AppScore& score : ranking) {
        RankingRow row;
        row.rank = static_cast<int>(rows.size()) + 1;
        row.bundleID = score.app.bundleID;
        row.name = score.app.name;
        row.detail = UsageText::detail(score, window);
        row.reason = UsageText::reason(score);
        row.description = row.detail + u". "_s + row.reason;
        row.share = score.score / ranking.first().score;
        rows += row;
    }
    setRows(rows);
}

QHash<int, QByteArray> RankingModel::roleNames() const {
    return {{rankRole, "rank"},     {bundleIDRole, "bundleID"},       {nameRole, "name"},  {detailRole, "detail"},
            {reasonRole, "reason"}, {descriptionRole, "description"}, {shareRole, "share"}};
}

QVariant RankingModel::value(const RankingRow& row, int role) const {
    switch (role) {
    case rankRole:
        return row.rank;
    case bundleIDRole:
        return row.bundleID;
    case Qt::DisplayRole:
    case nameRole:
        return row.name;
    case detailRole:
        return row.detail;
    case reasonRole:
        return row.reason;
    case descriptionRole:
        return row.description;
    case shareRole:
        return row.share;
    default:
        return {};
    }
}

} // namespace Kelvane
