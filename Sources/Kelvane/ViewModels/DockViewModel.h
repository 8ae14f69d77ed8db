#pragma once

#include "DockCore/DockDiff.h"
#include "Kelvane/ViewModels/ProfileListRow.h"
#include "Kelvane/ViewModels/RowListOf.h"
#include "Kelvane/ViewModels/TileRow.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace Kelvane {

class AppModel;

/// State and actions of the Dock pane: the present Dock, the one that the active profile suggests, and their
/// difference. Main thread only.
class DockViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(Kelvane::RowListModel* now READ now CONSTANT)
    Q_PROPERTY(Kelvane::RowListModel* suggested READ suggested CONSTANT)
    Q_PROPERTY(Kelvane::RowListModel* profiles READ profiles CONSTANT)
    /// The row of the active profile.
    Q_PROPERTY(int activeRow READ activeRow NOTIFY changed)
    Q_PROPERTY(QString nowCaption READ nowCaption NOTIFY changed)
    Q_PROPERTY(QString suggestedTitle READ suggestedTitle NOTIFY changed)
    Q_PROPERTY(QString suggestion READ suggestion NOTIFY changed)
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY changed)
    Q_PROPERTY(QString dataNote READ dataNote NOTIFY changed)
    Q_PROPERTY(int added READ added NOTIFY changed)
    Q_PROPERTY(int leaving READ leaving NOTIFY changed)
    Q_PROPERTY(int moved READ moved NOTIFY changed)
    Q_PROPERTY(QString leavingLine READ leavingLine NOTIFY changed)
    Q_PROPERTY(QString editText READ editText NOTIFY changed)
    Q_PROPERTY(bool matches READ matches NOTIFY changed)
    /// Either Dock has so many applications that its tiles are drawn smaller.
    Q_PROPERTY(bool dense READ isDense NOTIFY changed)

public:
    explicit DockViewModel(AppModel& model);
    static DockViewModel* create(QQmlEngine* engine, QJSEngine*);

    RowListOf<TileRow>* now() { return &m_now; }
    RowListOf<TileRow>* suggested() { return &m_suggested; }
    RowListOf<ProfileListRow>* profiles() { return &m_profiles; }
    int activeRow() const;
    QString nowCaption() const;
    QString suggestedTitle() const;
    QString suggestion() const;
    QString emptyText() const;
    QString dataNote() const;
    int added() const { return static_cast<int>(m_diff.added.size()); }
    int leaving() const { return static_cast<int>(m_diff.removed.size()); }
    int moved() const { return static_cast<int>(m_diff.moved.size()); }
    QString leavingLine() const;
    QString editText() const;
    bool matches() const;
    bool isDense() const;

    /// Makes the profile active; the Dock stays.
    Q_INVOKABLE void chooseRow(int row);
    Q_INVOKABLE void editProfile();
    Q_INVOKABLE void apply();

Q_SIGNALS:
    void changed();

private:
    void updateTiles();
    void updateProfiles();

    AppModel& m_model;
    DockCore::DockDiff m_diff;
    RowListOf<TileRow> m_now;
    RowListOf<TileRow> m_suggested;
    RowListOf<ProfileListRow> m_profiles;
};

} // namespace Kelvane
