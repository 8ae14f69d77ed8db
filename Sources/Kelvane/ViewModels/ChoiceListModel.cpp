#include "Kelvane/ViewModels/ChoiceListModel.h"

using namespace DockCore;
using namespace Qt::StringLiterals;

namespace Kelvane {

QString ChoiceListModel::line(const Profile& profile) {
    const qint64 count = profile.adaptiveSlots;
    const QString apps = count < 1 ? u"no apps"_s : count == 1 ? u"1 app"_s : QString::number(count) + u" apps"_s;
    return u"With "_s + apps + u" by usage · "_s + title(profile.window);
}

QHash<int, QByteArray> ChoiceListModel::roleNames() const {
    return {{idRole, "profileId"}, {nameRole, "name"},   {symbolRole, "symbol"},
            {lineRole, "line"},    {iconsRole, "icons"}, {isChosenRole, "isChosen"}};
}

QVariant ChoiceListModel::value(const ChoiceRow& row, int role) const {
    switch (role) {
    case idRole:
        return uuidString(row.id);
    case Qt::DisplayRole:
    case nameRole:
        return row.name;
    case symbolRole:
        return row.symbol;
    case lineRole:
        return row.line;
    case iconsRole:
        return row.icons;
    case isChosenRole:
        return row.isChosen;
    default:
        return {};
    }
}

} // namespace Kelvane
