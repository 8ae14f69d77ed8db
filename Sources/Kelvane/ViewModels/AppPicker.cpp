#include "Kelvane/ViewModels/AppPicker.h"

#include "DockCore/Ports/Folders.h"
#include "Kelvane/AppModel.h"

#include <QDir>

#include <algorithm>
#include <utility>

using namespace DockCore;
using namespace Qt::StringLiterals;

namespace Kelvane {

AppPicker::AppPicker(AppModel& model, ProfileEditor& editor, QObject* parent)
    : QObject(parent)
    , m_model(model)
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
    QList<AppInfo> ranked;
    const QList<AppScore> ranking = m_model.rankings().value(profile.window);
    for (const AppScore& score : ranking)
        ranked += score.app;
    m_apps.setApps(ranked, m_model.installed(),
                   m_target == ProfileEditor::PickTarget::pinned ? profile.pinned : profile.excluded, m_search);
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
