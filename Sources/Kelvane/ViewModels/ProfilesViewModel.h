#pragma once

#include "Kelvane/ViewModels/AppPicker.h"
#include "Kelvane/ViewModels/ProfileEditor.h"
#include "Kelvane/ViewModels/ProfileListRow.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace Kelvane {

class AppModel;

/// State and actions of the profiles pane: the list, the selected profile, and the editor of that one.
/// The selection is not the active profile. Main thread only.
class ProfilesViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(Kelvane::RowListModel* profiles READ profiles CONSTANT)
    Q_PROPERTY(Kelvane::ProfileEditor* editor READ editor CONSTANT)
    Q_PROPERTY(Kelvane::AppPicker* picker READ picker CONSTANT)
    Q_PROPERTY(int selectedRow READ selectedRow NOTIFY selectionChanged)

public:
    explicit ProfilesViewModel(AppModel& model);
    static ProfilesViewModel* create(QQmlEngine* engine, QJSEngine*);

    RowListOf<ProfileListRow>* profiles() { return &m_profiles; }
    ProfileEditor* editor() { return &m_editor; }
    AppPicker* picker() { return &m_picker; }
    int selectedRow() const;

    Q_INVOKABLE void select(const QString& id);
    Q_INVOKABLE void selectRow(int row);
    Q_INVOKABLE void selectActive();
    Q_INVOKABLE void add();
    Q_INVOKABLE void duplicateSelected();
    /// Selects the profile that moves into its row; the only profile stays.
    Q_INVOKABLE void removeSelected();

Q_SIGNALS:
    void selectionChanged();
    /// A profile was made and selected; its name is to be edited.
    void profileMade();

private:
    void reload();
    void setSelected(const QUuid& id);

    AppModel& m_model;
    QUuid m_selected;
    RowListOf<ProfileListRow> m_profiles;
    ProfileEditor m_editor;
    AppPicker m_picker;
};

} // namespace Kelvane
