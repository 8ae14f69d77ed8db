#include "Kelvane/ViewModels/SettingsViewModel.h"

#include "DockCore/Ports/Folders.h"
#include "Kelvane/Ports/Desktop.h"
#include "Kelvane/ViewModels/AppFacade.h"

#include <QCoreApplication>
#include <QFileInfo>

using namespace DockCore;

namespace Kelvane {

SettingsViewModel::SettingsViewModel(AppModel& model, Desktop& desktop)
    : m_model(model)
    , m_desktop(desktop) {
    connect(&model, &AppModel::settingsChanged, this, &SettingsViewModel::changed);
    connect(&model, &AppModel::launchAtLoginChanged, this, &SettingsViewModel::changed);
}

SettingsViewModel* SettingsViewModel::create(QQmlEngine* engine, QJSEngine*) {
    AppFacade& facade = AppFacade::of(*engine);
    return new SettingsViewModel(facade.model(), facade.desktop());
}

QStringList SettingsViewModel::schedules() const {
    QStringList titles;
    for (const AutoUpdate interval : allAutoUpdates())
        titles += title(interval);
    return titles;
}

int SettingsViewModel::scheduleIndex() const {
    return static_cast<int>(allAutoUpdates().indexOf(m_model.settings().autoUpdate));
}

void SettingsViewModel::setScheduleIndex(int index) {
    if (index >= 0 && index < allAutoUpdates().size())
        m_model.setAutoUpdate(allAutoUpdates()[index]);
}

QString SettingsViewModel::folder() const {
    const QString folder = m_model.paths().support();
    const QString home = m_model.services().folders.home();
    return !home.isEmpty() && folder.startsWith(home + u'/') ? u'~' + folder.mid(home.size()) : folder;
}

QString SettingsViewModel::version() const {
    return QCoreApplication::applicationVersion();
}

void SettingsViewModel::showData() {
    const QString file = m_model.paths().usage();
    m_desktop.reveal(QFileInfo::exists(file) ? file : m_model.paths().support());
}

} // namespace Kelvane
