#include "Kelvane/ViewModels/SettingsViewModel.h"

#include "DockCore/Ports/Folders.h"
#include "Kelvane/AppModel.h"
#include "Kelvane/Ports/Desktop.h"
#include "Kelvane/ViewModels/ScheduleText.h"

#include <QCoreApplication>
#include <QFileInfo>

using namespace DockCore;
using namespace Qt::StringLiterals;

namespace Kelvane {

SettingsViewModel::SettingsViewModel(AppModel& model, Desktop& desktop, QObject* parent)
    : QObject(parent)
    , m_model(model)
    , m_desktop(desktop) {
    connect(&model, &AppModel::settingsChanged, this, &SettingsViewModel::changed);
    connect(&model, &AppModel::launchAtLoginChanged, this, &SettingsViewModel::changed);
}

QStringList SettingsViewModel::schedules() const {
    return ScheduleText::titles();
}

int SettingsViewModel::scheduleIndex() const {
    return ScheduleText::index(m_model.settings().autoUpdate);
}

void SettingsViewModel::setScheduleIndex(int index) {
    if (index >= 0 && index < allAutoUpdates().size())
        m_model.setAutoUpdate(allAutoUpdates()[index]);
}

bool SettingsViewModel::isPaused() const {
    return m_model.settings().autoPaused;
}

bool SettingsViewModel::opensAtLogin() const {
    return m_model.launchAtLogin();
}

void SettingsViewModel::setOpensAtLogin(bool on) {
    m_model.setLaunchAtLogin(on);
    // Also after a refusal the switch must go back.
    Q_EMIT changed();
}

bool SettingsViewModel::tracksUsage() const {
    return m_model.settings().trackingEnabled;
}

void SettingsViewModel::setTracksUsage(bool on) {
    m_model.setTracking(on);
}

QString SettingsViewModel::folder() const {
    const QString folder = m_model.paths().support();
    const QString home = m_model.services().folders.home();
    return !home.isEmpty() && folder.startsWith(home + u'/') ? u'~' + folder.mid(home.size()) : folder;
}

QString SettingsViewModel::version() const {
    return QCoreApplication::applicationVersion();
}

void SettingsViewModel::resume() {
    m_model.refreshAndResume();
}

void SettingsViewModel::showData() {
    const QString file = m_model.paths().usage();
    m_desktop.reveal(QFileInfo::exists(file) ? file : m_model.paths().support());
}

void SettingsViewModel::eraseUsage() {
    m_model.eraseUsage();
}

} // namespace Kelvane
