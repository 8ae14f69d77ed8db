#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

namespace Kelvane {

class AppModel;
class Desktop;

/// What the settings pane shows and changes. Each change is saved at once. Main thread only.
class SettingsViewModel : public QObject {
    Q_OBJECT
    Q_PROPERTY(QList<QString> schedules READ schedules CONSTANT)
    Q_PROPERTY(int scheduleIndex READ scheduleIndex WRITE setScheduleIndex NOTIFY changed)
    Q_PROPERTY(bool isPaused READ isPaused NOTIFY changed)
    Q_PROPERTY(bool opensAtLogin READ opensAtLogin WRITE setOpensAtLogin NOTIFY changed)
    Q_PROPERTY(bool tracksUsage READ tracksUsage WRITE setTracksUsage NOTIFY changed)
    /// The folder with all data, the home folder written "~".
    Q_PROPERTY(QString folder READ folder CONSTANT)
    Q_PROPERTY(QString version READ version CONSTANT)

public:
    SettingsViewModel(AppModel& model, Desktop& desktop, QObject* parent = nullptr);

    QStringList schedules() const;
    int scheduleIndex() const;
    void setScheduleIndex(int index);
    bool isPaused() const;
    bool opensAtLogin() const;
    /// The switch shows what the system says afterwards, which may be a refusal.
    void setOpensAtLogin(bool on);
    bool tracksUsage() const;
    void setTracksUsage(bool on);
    QString folder() const;
    QString version() const;

    Q_INVOKABLE void resume();
    /// Shows the usage file in the desktop's file manager, or its folder while there is no such file.
    Q_INVOKABLE void showData();
    Q_INVOKABLE void eraseUsage();

Q_SIGNALS:
    void changed();

private:
    AppModel& m_model;
    Desktop& m_desktop;
};

} // namespace Kelvane
