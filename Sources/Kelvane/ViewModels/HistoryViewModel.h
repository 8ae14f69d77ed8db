#pragma once

#include "Kelvane/ViewModels/RowListOf.h"
#include "Kelvane/ViewModels/SnapshotRow.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <optional>

class QJSEngine;
class QQmlEngine;

namespace Kelvane {

class AppModel;

/// State and actions of the history pane; the view asks for confirmation. Main thread only.
class HistoryViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(Kelvane::RowListModel* snapshots READ snapshots CONSTANT)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed)
    Q_PROPERTY(bool hasPrevious READ hasPrevious NOTIFY changed)

public:
    explicit HistoryViewModel(AppModel& model);
    static HistoryViewModel* create(QQmlEngine* engine, QJSEngine*);

    RowListOf<SnapshotRow>* snapshots() { return &m_snapshots; }
    bool isEmpty() const { return m_snapshots.rowCount() == 0; }
    bool hasPrevious() const;

    Q_INVOKABLE void restorePrevious();
    /// Both do nothing when the snapshot no longer exists.
    Q_INVOKABLE void restore(const QString& id);
    Q_INVOKABLE void remove(const QString& id);

Q_SIGNALS:
    void changed();

private:
    void reload();
    std::optional<DockCore::Snapshot> snapshot(const QString& id) const;

    AppModel& m_model;
    RowListOf<SnapshotRow> m_snapshots;
};

} // namespace Kelvane
