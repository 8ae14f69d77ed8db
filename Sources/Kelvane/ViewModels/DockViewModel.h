#pragma once

#include "DockCore/DockDiff.h"
#include "Kelvane/ViewModels/ProfileListModel.h"
#include "Kelvane/ViewModels/TileListModel.h"

#include <QObject>
#include <QString>

class QJSEngine;
class QQmlEngine;

namespace Kelvane {

class AppModel;

/// What the Dock pane shows and does: the Dock as it is, the one the active profile suggests, and what lies between.
/// Main thread only.
class DockViewModel : public QObject {
    Q_OBJECT
    Q_PROPERTY(Kelvane::TileListModel* now READ now CONSTANT)
    Q_PROPERTY(Kelvane::TileListModel* suggested READ suggested CONSTANT)
    Q_PROPERTY(Kelvane::ProfileListModel* profiles READ profiles CONSTANT)
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
    explicit DockViewModel(AppModel& model, QObject* parent = nullptr);
    static DockViewModel* create(QQmlEngine*, QJSEngine*);

    TileListModel* now() { return &m_now; }
    TileListModel* suggested() { return &m_suggested; }
    ProfileListModel* profiles() { return &m_profiles; }
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

    /// Makes the profile the one that the pane suggests; the Dock stays.
    Q_INVOKABLE void chooseRow(int row);
    Q_INVOKABLE void editProfile();
    Q_INVOKABLE void apply();
    Q_INVOKABLE void resume();

    /// With more applications than this in one list, both are drawn dense.
    static constexpr int mostRoomy = 27;

Q_SIGNALS:
    void changed();

private:
    void updateTiles();
    void updateProfiles();

    AppModel& m_model;
    DockCore::DockDiff m_diff;
    TileListModel m_now;
    TileListModel m_suggested;
    ProfileListModel m_profiles;
};

} // namespace Kelvane
