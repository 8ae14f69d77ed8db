#pragma once

#include "Kelvane/ViewModels/ChoiceListModel.h"

#include <QObject>
#include <QString>
#include <QStringList>

namespace Kelvane {

class AppModel;

/// The first run: welcome, choose, safety. The step is the model's, so the flow survives its window; nothing here
/// touches the Dock but the last button. Main thread only.
class FirstRunViewModel : public QObject {
    Q_OBJECT
    /// 0 to 2.
    Q_PROPERTY(int step READ step NOTIFY stepChanged)
    Q_PROPERTY(int stepCount READ stepCount CONSTANT)
    Q_PROPERTY(Kelvane::ChoiceListModel* choices READ choices CONSTANT)
    /// The Dock as it was saved first.
    Q_PROPERTY(QList<QString> savedApps READ savedApps NOTIFY changed)
    /// Its icons in two rows of about equal length where one would be too long; the second may be empty.
    Q_PROPERTY(QList<QString> savedFirstIcons READ savedFirstIcons NOTIFY changed)
    Q_PROPERTY(QList<QString> savedSecondIcons READ savedSecondIcons NOTIFY changed)
    Q_PROPERTY(QString savedNames READ savedNames NOTIFY changed)
    Q_PROPERTY(QString suggestionTitle READ suggestionTitle NOTIFY changed)
    Q_PROPERTY(int addedCount READ addedCount NOTIFY changed)
    Q_PROPERTY(int leavingCount READ leavingCount NOTIFY changed)
    Q_PROPERTY(int movedCount READ movedCount NOTIFY changed)
    Q_PROPERTY(QList<QString> schedules READ schedules CONSTANT)
    Q_PROPERTY(int scheduleIndex READ scheduleIndex WRITE setScheduleIndex NOTIFY changed)
    Q_PROPERTY(bool opensAtLogin READ opensAtLogin WRITE setOpensAtLogin NOTIFY changed)

public:
    static constexpr int lastStep = 2;
    static constexpr qsizetype iconsPerChoice = 8;
    static constexpr qsizetype iconsPerRow = 14;

    explicit FirstRunViewModel(AppModel& model, QObject* parent = nullptr);

    int step() const;
    int stepCount() const { return lastStep + 1; }
    ChoiceListModel* choices() { return &m_choices; }
    QStringList savedApps() const;
    QStringList savedFirstIcons() const;
    QStringList savedSecondIcons() const;
    QString savedNames() const;
    QString suggestionTitle() const;
    int addedCount() const;
    int leavingCount() const;
    int movedCount() const;
    QStringList schedules() const;
    int scheduleIndex() const;
    void setScheduleIndex(int index);
    bool opensAtLogin() const;
    void setOpensAtLogin(bool on);

    /// Both stay within the steps.
    Q_INVOKABLE void back();
    Q_INVOKABLE void advance();
    /// Makes a profile the active one; the Dock stays as it is.
    Q_INVOKABLE void choose(const QString& profileId);
    Q_INVOKABLE void applyToDock();
    Q_INVOKABLE void notNow();

Q_SIGNALS:
    void stepChanged();
    void changed();

private:
    void reload();

    AppModel& m_model;
    ChoiceListModel m_choices;
};

} // namespace Kelvane
