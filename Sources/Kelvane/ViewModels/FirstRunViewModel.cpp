#include "Kelvane/ViewModels/FirstRunViewModel.h"

#include "Kelvane/AppModel.h"
#include "Kelvane/Counted.h"
#include "Kelvane/ViewModels/AppFacade.h"
#include "Kelvane/ViewModels/AppNames.h"
#include "Kelvane/ViewModels/ProfileListRow.h"

#include <algorithm>

using namespace DockCore;
using namespace Qt::StringLiterals;

namespace Kelvane {

namespace {

constexpr qsizetype iconsPerChoice = 8;
constexpr qsizetype iconsPerRow = 14;

/// How many applications a profile fills in by usage, and over which window.
QString line(const Profile& profile) {
    const QString apps = profile.adaptiveSlots < 1 ? u"no apps"_s : counted(profile.adaptiveSlots, u"app"_s);
    return u"With "_s + apps + u" by usage · "_s + title(profile.window);
}

} // namespace

FirstRunViewModel::FirstRunViewModel(AppModel& model)
    : m_model(model) {
    connect(&model, &AppModel::onboardingStepChanged, this, &FirstRunViewModel::stepChanged);
    connect(&model, &AppModel::profilesChanged, this, &FirstRunViewModel::reload);
    connect(&model, &AppModel::settingsChanged, this, &FirstRunViewModel::reload);
    connect(&model, &AppModel::proposalChanged, this, &FirstRunViewModel::reload);
    connect(&model, &AppModel::currentChanged, this, &FirstRunViewModel::changed);
    connect(&model, &AppModel::snapshotsChanged, this, &FirstRunViewModel::changed);
    reload();
}

FirstRunViewModel* FirstRunViewModel::create(QQmlEngine* engine, QJSEngine*) {
    return new FirstRunViewModel(AppFacade::of(*engine).model());
}

void FirstRunViewModel::reload() {
    QList<ChoiceRow> choices;
    // Once the first run is done only pictures show them, and planning each profile at each change is work.
    if (!m_model.settings().onboarded || m_model.isCapturing()) {
        const QList<ProfileListRow> listed = ProfileListRow::listed(m_model.profiles(), m_model.activeProfile().id);
        for (const ProfileListRow& shown : listed) {
            const Profile& profile = m_model.profiles()[choices.size()];
            const QStringList apps = bundleIDs(m_model.plan(profile)).mid(0, iconsPerChoice);
            choices.append({shown.profileId, shown.title, shown.symbol, line(profile), AppNames(m_model).icons(apps),
                            shown.isActive});
        }
    }
    m_choices.setRows(choices);
    Q_EMIT changed();
}

int FirstRunViewModel::step() const {
    return std::clamp(m_model.onboardingStep(), 0, lastStep);
}

QStringList FirstRunViewModel::savedApps() const {
    const auto original = std::ranges::find_if(m_model.snapshots(), &Snapshot::isOriginal);
    return original == m_model.snapshots().end() ? bundleIDs(m_model.current()) : original->bundleIDs;
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
