#include "Kelvane/ViewModels/AppPicker.h"

#include "DockCore/Ports/Folders.h"
#include "Kelvane/AppModel.h"

#include <QDir>
#include <QSet>

#include <algorithm>
#include <utility>

using namespace DockCore;
using namespace Qt::StringLiterals;

namespace Kelvane {

namespace {

constexpr qsizetype mostUsedCount = 8;

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
bool matches(const AppInfo& app, const QStringList& words) {
    const QString name = folded(app.name);
    return std::ranges::all_of(words, [&name](const QString& word) { return name.contains(word); });
}

QList<AppPickerRow> rows(const QList<AppScore>& ranking, const QList<AppInfo>& installed, const QStringList& added,
                         const QString& search) {
    const QStringList words = folded(search).simplified().split(u' ', Qt::SkipEmptyParts);
    QList<AppPickerRow> rows;
    QSet<QString> above;
    for (const AppScore& score : ranking.first(std::min(mostUsedCount, ranking.size()))) {
        const AppInfo& app = score.app;
        if (!matches(app, words))
            continue;
        above += app.bundleID;
        rows.append({{}, app.bundleID, app.name, added.contains(app.bundleID)});
    }
    const QString heading = QString::number(rows.size()) + u" most used"_s;
    for (AppPickerRow& row : rows)
        row.section = heading;
    for (const AppInfo& app : installed) {
        const bool isShown = !words.isEmpty() && above.contains(app.bundleID);
        if (!isShown && matches(app, words))
            rows.append({u"All apps"_s, app.bundleID, app.name, added.contains(app.bundleID)});
    }
    return rows;
}

} // namespace

AppPicker::AppPicker(AppModel& model, ProfileEditor& editor)
    : m_model(model)
    , m_editor(editor) {
    connect(&model, &AppModel::rankingsChanged, this, &AppPicker::reload);
    connect(&editor, &ProfileEditor::changed, this, &AppPicker::reload);
    reload();
}

QUrl AppPicker::applicationsFolder() const {
    Folders& folders = m_model.services().folders;
    const QStringList searched = AppCatalog::searchFolders(folders);
    const auto used = std::ranges::find_if(
        searched, [&folders](const QString& folder) { return !folders.entries(folder).isEmpty(); });
    return QUrl::fromLocalFile(used == searched.end() ? searched.constFirst() : *used);
}

void AppPicker::setSearch(const QString& search) {
    if (m_search == search)
        return;
    m_search = search;
    Q_EMIT searchChanged();
    reload();
}

void AppPicker::open(ProfileEditor::PickTarget target) {
    m_target = target;
    setProblem({});
    setSearch({});
    reload();
}

void AppPicker::reload() {
    const Profile profile = m_editor.profile();
    const QStringList& added = m_target == ProfileEditor::PickTarget::pinned ? profile.pinned : profile.excluded;
    m_apps.setRows(rows(m_model.rankings().value(profile.window), m_model.installed(), added, m_search));
    Q_EMIT appsChanged();
}

void AppPicker::add(int row) {
    if (row < 0 || row >= m_apps.rowCount())
        return;
    // The list changes while the application is added.
    const QString bundleID = m_apps.rows()[row].bundleID;
    m_editor.add(m_target, bundleID);
    setProblem({});
}

void AppPicker::addBundle(const QUrl& url) {
    QString path = url.toLocalFile();
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    const std::optional<AppInfo> app = m_model.catalog().add(path);
    if (!app) {
        setProblem(u"“"_s + QDir(path).dirName() + u"” is not an app."_s);
        return;
    }
    m_editor.add(m_target, app->bundleID);
    setProblem({});
}

void AppPicker::setProblem(const QString& problem) {
    if (std::exchange(m_problem, problem) != problem)
        Q_EMIT problemChanged();
}

} // namespace Kelvane
