#pragma once

#include "Kelvane/ViewModels/AppPicker.h"
#include "Kelvane/ViewModels/ProfileEditor.h"
#include "Kelvane/ViewModels/ProfileListModel.h"

#include <QObject>
#include <QString>

namespace Kelvane {

class AppModel;

/// What the profiles pane shows and does: the list, which profile is selected, and the editor on that one.
/// The selection is not the active profile. Main thread only.
class ProfilesViewModel : public QObject {
    Q_OBJECT
    Q_PROPERTY(Kelvane::ProfileListModel* profiles READ profiles CONSTANT)
    Q_PROPERTY(Kelvane::ProfileEditor* editor READ editor CONSTANT)
    Q_PROPERTY(Kelvane::AppPicker* picker READ picker CONSTANT)
    Q_PROPERTY(QString selectedId READ selectedId NOTIFY selectionChanged)
    Q_PROPERTY(int selectedRow READ selectedRow NOTIFY selectionChanged)

public:
    explicit ProfilesViewModel(AppModel& model, QObject* parent = nullptr);

    ProfileListModel* profiles() { return &m_profiles; }
    ProfileEditor* editor() { return &m_editor; }
    AppPicker* picker() { return &m_picker; }
    QString selectedId() const { return DockCore::uuidString(m_selected); }
    int selectedRow() const;

    Q_INVOKABLE void select(const QString& id);
    Q_INVOKABLE void selectRow(int row);
    Q_INVOKABLE void selectActive();
    Q_INVOKABLE void add();
    Q_INVOKABLE void duplicateSelected();
    /// Selects the profile that takes its place; the only profile stays.
    Q_INVOKABLE void removeSelected();

Q_SIGNALS:
    void selectionChanged();
    /// A profile was made and selected; its name waits to be typed over.
    void profileMade();

private:
    void reload();
    void setSelected(const QUuid& id);

    AppModel& m_model;
    QUuid m_selected;
    ProfileListModel m_profiles;
    ProfileEditor m_editor;
    AppPicker m_picker;
};

} // namespace Kelvane
