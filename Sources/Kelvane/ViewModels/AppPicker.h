#pragma once

#include "Kelvane/ViewModels/AppPickerModel.h"
#include "Kelvane/ViewModels/ProfileEditor.h"

#include <QObject>
#include <QUrl>

namespace Kelvane {

/// Chooses applications for one list of the edited profile: from the installed ones, by search, or any bundle on disk.
/// Main thread only.
class AppPicker : public QObject {
    Q_OBJECT
    Q_PROPERTY(Kelvane::AppPickerModel* apps READ apps CONSTANT)
    Q_PROPERTY(QString search READ search WRITE setSearch NOTIFY searchChanged)
    /// What was wrong with the bundle chosen last; empty when nothing was.
    Q_PROPERTY(QString problem READ problem NOTIFY problemChanged)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY appsChanged)
    Q_PROPERTY(QUrl applicationsFolder READ applicationsFolder CONSTANT)

public:
    AppPicker(AppModel& model, ProfileEditor& editor, QObject* parent = nullptr);

    AppPickerModel* apps() { return &m_apps; }
    QString search() const { return m_search; }
    void setSearch(const QString& search);
    QString problem() const { return m_problem; }
    bool isEmpty() const { return m_apps.rowCount() == 0; }
    QUrl applicationsFolder() const;

    /// Begins anew, without a search, for one of the two lists.
    Q_INVOKABLE void openForPinned() { open(ProfileEditor::PickTarget::pinned); }
    Q_INVOKABLE void openForExcluded() { open(ProfileEditor::PickTarget::excluded); }
    /// Adds the application in this row; one that is in the list already stays as it is.
    Q_INVOKABLE void add(int row);
    /// Adds the application in the bundle at `url`, or says what is wrong with it.
    Q_INVOKABLE void addBundle(const QUrl& url);

Q_SIGNALS:
    void searchChanged();
    void problemChanged();
    void appsChanged();

private:
    void open(ProfileEditor::PickTarget target);
    void reload();
    void setProblem(const QString& problem);

    AppModel& m_model;
    ProfileEditor& m_editor;
    ProfileEditor::PickTarget m_target = ProfileEditor::PickTarget::pinned;
    AppPickerModel m_apps;
    QString m_search;
    QString m_problem;
};

} // namespace Kelvane
