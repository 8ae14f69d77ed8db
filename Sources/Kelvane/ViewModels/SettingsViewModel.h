#pragma once

#include "Kelvane/AppModel.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace Kelvane {

class Desktop;

/// State and actions of the settings pane. Each change is saved at once. Main thread only.
class SettingsViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QList<QString> schedules READ schedules CONSTANT)
    Q_PROPERTY(int scheduleIndex READ scheduleIndex WRITE setScheduleIndex NOTIFY changed)
    Q_PROPERTY(bool opensAtLogin READ opensAtLogin WRITE setOpensAtLogin NOTIFY changed)
    Q_PROPERTY(bool tracksUsage READ tracksUsage WRITE setTracksUsage NOTIFY changed)
    /// The folder with all data, the home folder written "~".
    Q_PROPERTY(QString folder READ folder CONSTANT)
    Q_PROPERTY(QString version READ version CONSTANT)

public:
    SettingsViewModel(AppModel& model, Desktop& desktop);
    static SettingsViewModel* create(QQmlEngine* engine, QJSEngine*);

    QStringList schedules() const;
    int scheduleIndex() const;
    void setScheduleIndex(int index);
    bool opensAtLogin() const { return m_model.launchAtLogin(); }
    /// The system may refuse; the switch then goes back.
    void setOpensAtLogin(bool on) {
        m_model.setLaunchAtLogin(on);
        Q_EMIT changed();
    }
    bool tracksUsage() const { return m_model.settings().trackingEnabled; }
    void setTracksUsage(bool on) { m_model.setTracking(on); }
    QString folder() const;
    QString version() const;

    /// Shows the usage file in the desktop's file manager, or its folder while there is no such file.
    Q_INVOKABLE void showData();
    Q_INVOKABLE void eraseUsage() { m_model.eraseUsage(); }

Q_SIGNALS:
    void changed();

private:
    AppModel& m_model;
    Desktop& m_desktop;
};

} // namespace Kelvane
