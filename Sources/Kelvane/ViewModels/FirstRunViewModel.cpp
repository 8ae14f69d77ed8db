#include "Kelvane/ViewModels/FirstRunViewModel.h"

#include "DockCore/DockDiff.h"
#include "Kelvane/AppModel.h"
#include "Kelvane/ViewModels/AppNames.h"
#include "Kelvane/ViewModels/ProfileListModel.h"
#include "Kelvane/ViewModels/ScheduleText.h"

#include <algorithm>

using namespace DockCore;
using namespace Qt::StringLiterals;

namespace Kelvane {

namespace {

QStringList apps(const QList<DockTile>& tiles) {
    QStringList bundleIDs;
    for (const DockTile& tile : tiles) {
        if (tile.bundleID)
            bundleIDs += *tile.bundleID;
    }
    return bundleIDs;
}

} // namespace

FirstRunViewModel::FirstRunViewModel(AppModel& model, QObject* parent)
    : QObject(parent)
    , m_model(model) {
    connect(&model, &AppModel::onboardingStepChanged, this, &FirstRunViewModel::stepChanged);
    connect(&model, &AppModel::profilesChanged, this, &FirstRunViewModel::reload);
    connect(&model, &AppModel::settingsChanged, this, &FirstRunViewModel::reload);
    connect(&model, &AppModel::proposalChanged, this, &FirstRunViewModel::reload);
    connect(&model, &AppModel::currentChanged, this, &FirstRunViewModel::changed);
    connect(&model, &AppModel::snapshotsChanged, this, &FirstRunViewModel::changed);
    connect(&model, &AppModel::launchAtLoginChanged, this, &FirstRunViewModel::changed);
    reload();
}

void FirstRunViewModel::reload() {
    QList<ChoiceRow> choices;
    // Once the first run is done only pictures show them, and planning each profile at each change is work.
    if (!m_model.settings().onboarded || m_model.isCapturing()) {
        const QList<ProfileListRow> listed = ProfileListModel::listed(m_model.profiles(), m_model.activeProfile().id);
        for (const ProfileListRow& shown : listed) {
            const Profile& profile = m_model.profiles()[choices.size()];
            ChoiceRow row;
            row.id = shown.id;
            row.name = shown.title;
            row.symbol = shown.symbol;
            row.line = ChoiceListModel::line(profile);
            row.bundleIDs = apps(m_model.plan(profile)).mid(0, iconsPerChoice);
            row.icons = AppNames(m_model).icons(row.bundleIDs);
            row.isChosen = shown.isActive;
            choices += row;
        }
    }
    m_choices.setChoices(choices);
    Q_EMIT changed();
}

int FirstRunViewModel::step() const {
    return std::clamp(m_model.onboardingStep(), 0, lastStep);
}

QStringList FirstRunViewModel::savedApps() const {
    const auto original = std::ranges::find_if(m_model.snapshots(), &Snapshot::isOriginal);
    return original == m_model.snapshots().end() ? apps(m_model.current()) : original->bundleIDs;
}

QStringList FirstRunViewModel::savedFirstIcons() const {
    const QStringList icons = AppNames(m_model).icons(savedApps());
    return icons.size() > iconsPerRow ? icons.first((icons.size() + 1) / 2) : icons;
}

QStringList FirstRunViewModel::savedSecondIcons() const {
    return AppNames(m_model).icons(savedApps()).mid(savedFirstIcons().size());
}

QString FirstRunViewModel::savedNames() const {
    return AppNames(m_model).names(savedApps()).join(u", "_s);
}

QString FirstRunViewModel::suggestionTitle() const {
    return u"Suggested for "_s + m_model.activeProfile().name;
}

int FirstRunViewModel::addedCount() const {
    return static_cast<int>(m_model.proposedChange().added.size());
}

int FirstRunViewModel::leavingCount() const {
    return static_cast<int>(m_model.proposedChange().removed.size());
}

int FirstRunViewModel::movedCount() const {
    return static_cast<int>(m_model.proposedChange().moved.size());
}

QStringList FirstRunViewModel::schedules() const {
    return ScheduleText::titles();
}

int FirstRunViewModel::scheduleIndex() const {
    return ScheduleText::index(m_model.settings().autoUpdate);
}

void FirstRunViewModel::setScheduleIndex(int index) {
    if (index >= 0 && index < allAutoUpdates().size())
        m_model.setAutoUpdate(allAutoUpdates()[index]);
}

bool FirstRunViewModel::opensAtLogin() const {
    return m_model.launchAtLogin();
}

void FirstRunViewModel::setOpensAtLogin(bool on) {
    m_model.setLaunchAtLogin(on);
    Q_EMIT changed();
}

void FirstRunViewModel::back() {
    m_model.setOnboardingStep(std::max(step() - 1, 0));
}

void FirstRunViewModel::advance() {
    m_model.setOnboardingStep(std::min(step() + 1, lastStep));
}

void FirstRunViewModel::choose(const QString& profileId) {
    if (const auto id = uuidFromString(profileId))
        m_model.activate(*id, AppModel::Apply::no);
}

void FirstRunViewModel::applyToDock() {
    m_model.finishOnboarding(AppModel::Apply::yes);
}

void FirstRunViewModel::notNow() {
    m_model.finishOnboarding(AppModel::Apply::no);
}

} // namespace Kelvane
