#pragma once

#include "Kelvane/ViewModels/ChoiceRow.h"
#include "Kelvane/ViewModels/RowListOf.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace Kelvane {

class AppModel;

/// The first run: welcome, choose, safety. The step is the model's, so the flow survives its window; nothing here
/// touches the Dock but the last button. Main thread only.
class FirstRunViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// 0 to 2.
    Q_PROPERTY(int step READ step NOTIFY stepChanged)
    Q_PROPERTY(int stepCount READ stepCount CONSTANT)
    Q_PROPERTY(Kelvane::RowListModel* choices READ choices CONSTANT)
    /// The icons of the Dock as it was saved first, in two rows of about equal length where one would be too long; the
    /// second may be empty.
    Q_PROPERTY(QList<QString> savedFirstIcons READ savedFirstIcons NOTIFY changed)
    Q_PROPERTY(QList<QString> savedSecondIcons READ savedSecondIcons NOTIFY changed)
    Q_PROPERTY(QString savedNames READ savedNames NOTIFY changed)

public:
    static constexpr int lastStep = 2;

    explicit FirstRunViewModel(AppModel& model);
    static FirstRunViewModel* create(QQmlEngine* engine, QJSEngine*);

    int step() const;
    int stepCount() const { return lastStep + 1; }
    RowListOf<ChoiceRow>* choices() { return &m_choices; }
    QStringList savedFirstIcons() const;
    QStringList savedSecondIcons() const;
    QString savedNames() const;

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
    QStringList savedApps() const;

    AppModel& m_model;
    RowListOf<ChoiceRow> m_choices;
};

} // namespace Kelvane
