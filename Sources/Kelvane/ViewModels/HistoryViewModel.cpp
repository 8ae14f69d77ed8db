#include "Kelvane/ViewModels/HistoryViewModel.h"

#include "DockCore/Ports/Clock.h"
#include "Kelvane/AppModel.h"
#include "Kelvane/ViewModels/AppNames.h"

#include <algorithm>

using namespace DockCore;

namespace Kelvane {

HistoryViewModel::HistoryViewModel(AppModel& model, QObject* parent)
    : QObject(parent)
    , m_model(model) {
    connect(&model, &AppModel::snapshotsChanged, this, &HistoryViewModel::reload);
    connect(&model, &AppModel::currentChanged, this, &HistoryViewModel::reload);
    // A scan may have found names that were not known before.
    connect(&model, &AppModel::installedChanged, this, &HistoryViewModel::reload);
    connect(&model, &AppModel::isWorkingChanged, this, &HistoryViewModel::changed);
    reload();
}

bool HistoryViewModel::hasPrevious() const {
    return m_model.previousSnapshot().has_value();
}

bool HistoryViewModel::isWorking() const {
    return m_model.isWorking();
}

void HistoryViewModel::reload() {
    m_snapshots.setSnapshots(m_model.snapshots(), m_model.current(), AppNames(m_model), m_model.services().clock.now());
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
