#include "Kelvane/ViewModels/AppPickerModel.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace Kelvane {

namespace {

/// Letters without their accents and case, so that "pages" finds "Pagès".
QString folded(const QString& text) {
    QString result;
    for (const QChar character : text.normalized(QString::NormalizationForm_KD)) {
        if (character.category() != QChar::Mark_NonSpacing)
            result += character;
    }
    return result.toCaseFolded();
}

/// Every word of the search must occur in the name.
bool matches(const DockCore::AppInfo& app, const QStringList& words) {
    const QString name = folded(app.name);
    for (const QString& word : words) {
        if (!name.contains(word))
            return false;
    }
    return true;
}

} // namespace

void AppPickerModel::setApps(const QList<DockCore::AppInfo>& ranked, const QList<DockCore::AppInfo>& installed,
                             const QStringList& added, const QString& search) {
    const QStringList words = folded(search).simplified().split(u' ', Qt::SkipEmptyParts);
    QList<AppPickerRow> picks;
    QSet<QString> above;
    for (const DockCore::AppInfo& app : ranked.first(std::min(mostUsedCount, ranked.size()))) {
        if (!matches(app, words))
            continue;
        above += app.bundleID;
        picks.append({{}, app.bundleID, app.name, added.contains(app.bundleID)});
    }
    const QString heading = QString::number(picks.size()) + u" most used"_s;
    for (AppPickerRow& row : picks)
        row.section = heading;
    for (const DockCore::AppInfo& app : installed) {
        const bool isShown = !words.isEmpty() && above.contains(app.bundleID);
        if (!isShown && matches(app, words))
            picks.append({u"All apps"_s, app.bundleID, app.name, added.contains(app.bundleID)});
    }
    setRows(picks);
}

QHash<int, QByteArray> AppPickerModel::roleNames() const {
    return {{sectionRole, "section"}, {bundleIDRole, "bundleID"}, {nameRole, "name"}, {isAddedRole, "isAdded"}};
}

QVariant AppPickerModel::value(const AppPickerRow& row, int role) const {
    switch (role) {
    case sectionRole:
        return row.section;
    case bundleIDRole:
        return row.bundleID;
    case Qt::DisplayRole:
    case nameRole:
        return row.name;
    case isAddedRole:
        return row.isAdded;
    default:
        return {};
    }
}

} // namespace Kelvane
