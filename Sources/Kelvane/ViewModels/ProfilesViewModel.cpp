#include "Kelvane/ViewModels/ProfilesViewModel.h"

#include "Kelvane/AppModel.h"
#include "Kelvane/ViewModels/AppFacade.h"

#include <algorithm>

using namespace DockCore;

namespace Kelvane {

ProfilesViewModel::ProfilesViewModel(AppModel& model)
    : m_model(model)
    , m_selected(model.activeProfile().id)
    , m_editor(model)
    , m_picker(model, m_editor) {
    connect(&model, &AppModel::profilesChanged, this, &ProfilesViewModel::reload);
    connect(&model, &AppModel::settingsChanged, this, &ProfilesViewModel::reload);
    reload();
}

ProfilesViewModel* ProfilesViewModel::create(QQmlEngine* engine, QJSEngine*) {
    return new ProfilesViewModel(AppFacade::of(*engine).model());
}

void ProfilesViewModel::reload() {
    m_profiles.setRows(ProfileListRow::listed(m_model.profiles(), m_model.activeProfile().id));
    const bool exists = std::ranges::count(m_model.profiles(), m_selected, &Profile::id) > 0;
    setSelected(exists ? m_selected : m_model.activeProfile().id);
}

void ProfilesViewModel::setSelected(const QUuid& id) {
    if (m_selected != id) {
        m_selected = id;
        m_editor.setProfile(id);
    }
    // The row of the selection may have changed even where the profile has not.
    Q_EMIT selectionChanged();
}

int ProfilesViewModel::selectedRow() const {
    const auto found = std::ranges::find(m_model.profiles(), m_selected, &Profile::id);
    return static_cast<int>(found - m_model.profiles().begin());
}

void ProfilesViewModel::select(const QString& id) {
    const auto wanted = uuidFromString(id);
    if (wanted && std::ranges::count(m_model.profiles(), *wanted, &Profile::id) > 0)
        setSelected(*wanted);
}

void ProfilesViewModel::selectRow(int row) {
    if (row >= 0 && row < m_model.profiles().size())
        setSelected(m_model.profiles()[row].id);
}

void ProfilesViewModel::selectActive() {
    setSelected(m_model.activeProfile().id);
}

void ProfilesViewModel::add() {
    setSelected(m_model.addProfile().id);
    Q_EMIT profileMade();
}

void ProfilesViewModel::duplicateSelected() {
    setSelected(m_model.duplicate(m_editor.profile()).id);
    Q_EMIT profileMade();
}

void ProfilesViewModel::removeSelected() {
    if (m_model.profiles().size() < 2)
        return;
    const int row = selectedRow();
    m_model.removeProfile(m_selected);
    selectRow(std::min(row, static_cast<int>(m_model.profiles().size()) - 1));
}

} // namespace Kelvane
