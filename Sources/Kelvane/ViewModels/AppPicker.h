#pragma once

#include "Kelvane/ViewModels/AppPickerRow.h"
#include "Kelvane/ViewModels/ProfileEditor.h"
#include "Kelvane/ViewModels/RowListOf.h"

#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

namespace Kelvane {

/// Chooses applications for one list of the edited profile: the most used ones, then all that are installed by name, or
/// any bundle on disk. A search narrows both and shows no application twice. Main thread only.
class AppPicker : public QObject {
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(Kelvane::RowListModel* apps READ apps CONSTANT)
    Q_PROPERTY(QString search READ search WRITE setSearch NOTIFY searchChanged)
    /// The error of the bundle chosen last; empty when there was none.
    Q_PROPERTY(QString problem READ problem NOTIFY problemChanged)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY appsChanged)
    Q_PROPERTY(QUrl applicationsFolder READ applicationsFolder CONSTANT)

public:
    AppPicker(AppModel& model, ProfileEditor& editor);

    RowListOf<AppPickerRow>* apps() { return &m_apps; }
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
    RowListOf<AppPickerRow> m_apps;
    QString m_search;
    QString m_problem;
};

} // namespace Kelvane
