#include "Kelvane/ViewModels/DockViewModel.h"

#include "DockCore/Ports/Clock.h"
#include "Kelvane/AppModel.h"
#include "Kelvane/ViewModels/AppFacade.h"
#include "Kelvane/ViewModels/DockText.h"

#include <QSet>

#include <algorithm>

namespace Kelvane {

using namespace Qt::StringLiterals;
using DockCore::DockTile;

DockViewModel::DockViewModel(AppModel& model)
    : m_model(model) {
    connect(&model, &AppModel::currentChanged, this, &DockViewModel::updateTiles);
    connect(&model, &AppModel::proposalChanged, this, &DockViewModel::updateTiles);
    connect(&model, &AppModel::rankingsChanged, this, &DockViewModel::changed);
    connect(&model, &AppModel::profilesChanged, this, &DockViewModel::updateProfiles);
    connect(&model, &AppModel::settingsChanged, this, &DockViewModel::updateProfiles);
    updateProfiles();
}

DockViewModel* DockViewModel::create(QQmlEngine* engine, QJSEngine*) {
    return new DockViewModel(AppFacade::of(*engine).model());
}

int DockViewModel::activeRow() const {
    const QList<ProfileListRow>& rows = m_profiles.rows();
    return static_cast<int>(std::ranges::find(rows, true, &ProfileListRow::isActive) - rows.begin());
}

QString DockViewModel::nowCaption() const {
    return DockText::count(m_now.count());
}

QString DockViewModel::suggestedTitle() const {
    return u"Suggested for "_s + m_model.activeProfile().name;
}

QString DockViewModel::suggestion() const {
    const DockCore::Profile& profile = m_model.activeProfile();
    const QSet<QString> pinned(profile.pinned.begin(), profile.pinned.end());
    const auto installed = std::count_if(pinned.begin(), pinned.end(), [this](const QString& bundleID) {
        return m_model.catalog().isInstalled(bundleID);
    });
    return DockText::suggestion(installed, profile.adaptiveSlots, profile.window);
}

QString DockViewModel::emptyText() const {
    return AppModel::emptyText(m_model.activeProfile());
}

QString DockViewModel::dataNote() const {
    const DockCore::UsageWindow window = m_model.activeProfile().window;
    const QDateTime now = m_model.services().clock.now();
    return DockText::data(m_model.usage().trackedDays(window, now), window);
}

QString DockViewModel::leavingLine() const {
    QStringList names;
    for (const TileRow& row : m_now.rows()) {
        if (row.mark == TileRow::Mark::leaving)
            names.append(row.name);
    }
    return DockText::leaving(names);
}

QString DockViewModel::editText() const {
    return u"Edit "_s + m_model.activeProfile().name;
}

bool DockViewModel::matches() const {
    return m_model.proposalMatchesDock();
}

bool DockViewModel::isDense() const {
    return TileRow::areDense(m_now.rows()) || TileRow::areDense(m_suggested.rows());
}

void DockViewModel::chooseRow(int row) {
    if (row >= 0 && row < m_profiles.rowCount())
        m_model.activate(m_model.profiles()[row].id, AppModel::Apply::no);
}

void DockViewModel::editProfile() {
    m_model.setPane(Pane::profiles);
}

void DockViewModel::apply() {
    m_model.refreshAndApply(AppModel::Notify::always);
}

void DockViewModel::updateTiles() {
    const QList<DockTile>& current = m_model.current();
    const QList<DockTile>& proposal = m_model.proposal();
    m_diff = m_model.proposedChange();
    m_now.setRows(TileRow::current(current, m_diff));
    m_suggested.setRows(TileRow::proposed(proposal, current, m_diff, m_model.activeProfile().pinned));
    Q_EMIT changed();
}

void DockViewModel::updateProfiles() {
    m_profiles.setRows(ProfileListRow::listed(m_model.profiles(), m_model.activeProfile().id));
    updateTiles();
}

} // namespace Kelvane
