#include "Kelvane/ViewModels/HistoryViewModel.h"

#include "DockCore/Ports/Clock.h"
#include "Kelvane/AppModel.h"
#include "Kelvane/ViewModels/AppFacade.h"
#include "Kelvane/ViewModels/AppNames.h"

#include <algorithm>

using namespace DockCore;

namespace Kelvane {

HistoryViewModel::HistoryViewModel(AppModel& model)
    : m_model(model) {
    connect(&model, &AppModel::snapshotsChanged, this, &HistoryViewModel::reload);
    connect(&model, &AppModel::currentChanged, this, &HistoryViewModel::reload);
    // A scan may have found names that were not known before.
    connect(&model, &AppModel::installedChanged, this, &HistoryViewModel::reload);
    reload();
}

HistoryViewModel* HistoryViewModel::create(QQmlEngine* engine, QJSEngine*) {
    return new HistoryViewModel(AppFacade::of(*engine).model());
}

bool HistoryViewModel::hasPrevious() const {
    return m_model.previousSnapshot().has_value();
}

void HistoryViewModel::reload() {
    const QDateTime now = m_model.services().clock.now();
    QList<SnapshotRow> rows;
    for (const Snapshot& snapshot : m_model.snapshots())
        rows += SnapshotRow::of(snapshot, m_model.current(), AppNames(m_model), now);
    m_snapshots.setRows(rows);
    Q_EMIT changed();
}

std::optional<Snapshot> HistoryViewModel::snapshot(const QString& id) const {
    const auto found = std::ranges::find(m_model.snapshots(), id, &Snapshot::id);
    return found == m_model.snapshots().end() ? std::nullopt : std::optional(*found);
}

void HistoryViewModel::restorePrevious() {
    m_model.restorePrevious();
}

void HistoryViewModel::restore(const QString& id) {
    if (const auto found = snapshot(id))
        m_model.restore(*found);
}

void HistoryViewModel::remove(const QString& id) {
    if (const auto found = snapshot(id))
        m_model.removeSnapshot(*found);
}

} // namespace Kelvane
