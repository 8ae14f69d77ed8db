// The profile operations of the model.

#include "Kelvane/AppModel.h"

#include <algorithm>

using namespace DockCore;
using namespace Qt::StringLiterals;

namespace Kelvane {

void AppModel::saveProfiles() {
    m_store.saveProfiles();
    Q_EMIT profilesChanged();
}

void AppModel::update(const Profile& profile) {
    const auto stored = std::ranges::find(m_store.profiles, profile.id, &Profile::id);
    if (stored == m_store.profiles.end() || *stored == profile)
        return;
    *stored = profile;
    saveProfiles();
    if (profile.id == settings().activeProfileID)
        recomputeProposal();
}

Profile AppModel::addProfile() {
    const auto isTaken = [this](const QString& name) {
        return std::ranges::count(profiles(), name, &Profile::name) > 0;
    };
    QString name = u"New Profile"_s;
    for (int number = 2; isTaken(name); ++number)
        name = u"New Profile %1"_s.arg(number);
    const Profile profile = Profile::make(name, u"sparkles"_s, {}, {}, 8, UsageWindow::week, true);
    m_store.profiles.append(profile);
    saveProfiles();
    return profile;
}

Profile AppModel::duplicate(const Profile& profile) {
    Profile copy = profile;
    copy.id = QUuid::createUuid();
    copy.name += u" Copy"_s;
    m_store.profiles.append(copy);
    saveProfiles();
    return copy;
}

void AppModel::removeProfile(QUuid profile) {
    QList<Profile> remaining = profiles();
    erase_if(remaining, [&profile](const Profile& candidate) { return candidate.id == profile; });
    if (profiles().size() < 2 || remaining.isEmpty())
        return;
    m_store.profiles = remaining;
    if (settings().activeProfileID == profile) {
        m_store.settings.activeProfileID = remaining.constFirst().id;
        saveSettings();
        recomputeProposal();
    }
    saveProfiles();
}

} // namespace Kelvane
