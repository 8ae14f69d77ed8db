#pragma once

#include "DockCore/Profile.h"
#include "Kelvane/ViewModels/AppListRow.h"
#include "Kelvane/ViewModels/RowListOf.h"
#include "Kelvane/ViewModels/TileRow.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <functional>

namespace Kelvane {

class AppModel;

/// Edits one profile of the model. Each edit is handed to the model at once, which saves it; the editor keeps no draft.
/// Removals can be undone for as long as the editor lives. Main thread only.
class ProfileEditor : public QObject {
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY changed)
    Q_PROPERTY(QString symbol READ symbol WRITE setSymbol NOTIFY changed)
    Q_PROPERTY(QList<QString> symbols READ symbols CONSTANT)
    Q_PROPERTY(Kelvane::RowListModel* pinned READ pinned CONSTANT)
    Q_PROPERTY(Kelvane::RowListModel* excluded READ excluded CONSTANT)
    Q_PROPERTY(int usageSlots READ usageSlots WRITE setUsageSlots NOTIFY changed)
    Q_PROPERTY(QString usageSlotsText READ usageSlotsText NOTIFY changed)
    Q_PROPERTY(int windowIndex READ windowIndex WRITE setWindowIndex NOTIFY changed)
    Q_PROPERTY(bool isActive READ isActive NOTIFY changed)
    Q_PROPERTY(bool isOnly READ isOnly NOTIFY changed)
    /// "Undo Remove “Mail”", empty when there is nothing to undo.
    Q_PROPERTY(QString undoText READ undoText NOTIFY changed)
    /// The list that the removal was made in.
    Q_PROPERTY(Kelvane::RowListModel* undoList READ undoList NOTIFY changed)
    /// The Dock that the profile would make.
    Q_PROPERTY(Kelvane::RowListModel* preview READ preview CONSTANT)
    Q_PROPERTY(bool isPreviewDense READ isPreviewDense NOTIFY changed)
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY changed)
    Q_PROPERTY(int fewestSlots READ fewestSlots CONSTANT)
    Q_PROPERTY(int mostSlots READ mostSlots CONSTANT)

public:
    /// Which list an application is added to or taken from.
    enum class PickTarget { pinned, excluded };

    explicit ProfileEditor(AppModel& model);

    /// Shows another profile; one that does not exist shows the active one.
    void setProfile(const QUuid& id);
    DockCore::Profile profile() const;

    QString name() const { return profile().name; }
    void setName(const QString& name);
    QString symbol() const { return profile().symbol; }
    void setSymbol(const QString& symbol);
    QStringList symbols() const { return DockCore::Profile::symbols(); }
    RowListOf<AppListRow>* pinned() { return &m_pinned; }
    RowListOf<AppListRow>* excluded() { return &m_excluded; }
    int usageSlots() const { return static_cast<int>(profile().adaptiveSlots); }
    /// Keeps to 0 to 24.
    void setUsageSlots(int count);
    /// "None" where no place is filled by usage.
    QString usageSlotsText() const;
    int windowIndex() const;
    void setWindowIndex(int index);
    bool isActive() const;
    bool isOnly() const;
    QString undoText() const;
    RowListModel* undoList();
    RowListOf<TileRow>* preview() { return &m_preview; }
    bool isPreviewDense() const;
    QString emptyText() const;
    static int fewestSlots() { return 0; }
    static int mostSlots() { return 24; }

    /// Appends an application; one that is already in the list stays where it is.
    void add(PickTarget target, const QString& bundleID);
    Q_INVOKABLE void removePinned(int row) { remove(PickTarget::pinned, row); }
    Q_INVOKABLE void removeExcluded(int row) { remove(PickTarget::excluded, row); }
    /// Brings the application removed last from this profile back to where it was.
    Q_INVOKABLE void undoRemove();
    /// Moves a pinned application to another row of the list; rows that do not exist move nothing.
    Q_INVOKABLE void move(int from, int to);

    Q_INVOKABLE void makeActive();
    Q_INVOKABLE void applyToDock();

Q_SIGNALS:
    void changed();

private:
    struct Removal {
        QUuid profile;
        PickTarget target = PickTarget::pinned;
        qsizetype row = 0;
        QString bundleID;
    };

    void remove(PickTarget target, int row);
    void edit(const std::function<void(DockCore::Profile&)>& change);
    void reload();
    void updatePreview();
    const Removal* lastRemoval() const;

    AppModel& m_model;
    QUuid m_id;
    RowListOf<AppListRow> m_pinned;
    RowListOf<AppListRow> m_excluded;
    RowListOf<TileRow> m_preview;
    QList<Removal> m_removals;
};

} // namespace Kelvane
