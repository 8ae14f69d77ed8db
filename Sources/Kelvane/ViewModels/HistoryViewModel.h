#pragma once

#include "Kelvane/ViewModels/SnapshotListModel.h"

#include <QObject>

#include <optional>

namespace Kelvane {

class AppModel;

/// What the history pane shows and does. Confirming is the view's business. Main thread only.
class HistoryViewModel : public QObject {
    Q_OBJECT
    Q_PROPERTY(Kelvane::SnapshotListModel* snapshots READ snapshots CONSTANT)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed)
    Q_PROPERTY(bool hasPrevious READ hasPrevious NOTIFY changed)
    /// A change of the Dock is running.
    Q_PROPERTY(bool isWorking READ isWorking NOTIFY changed)

public:
    explicit HistoryViewModel(AppModel& model, QObject* parent = nullptr);

    SnapshotListModel* snapshots() { return &m_snapshots; }
    bool isEmpty() const { return m_snapshots.rowCount() == 0; }
    bool hasPrevious() const;
    bool isWorking() const;

    Q_INVOKABLE void restorePrevious();
    /// Both do nothing when the snapshot is gone.
    Q_INVOKABLE void restore(const QString& id);
    Q_INVOKABLE void remove(const QString& id);

Q_SIGNALS:
    void changed();

private:
    void reload();
    std::optional<DockCore::Snapshot> snapshot(const QString& id) const;

    AppModel& m_model;
    SnapshotListModel m_snapshots;
};

} // namespace Kelvane
