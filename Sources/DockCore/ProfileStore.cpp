#include "DockCore/ProfileStore.h"

#include "DockCore/AppCatalog.h"
#include "DockCore/DefaultProfiles.h"
#include "DockCore/Error.h"
#include "DockCore/Ports/Clock.h"
#include "DockCore/Storage/JSONFile.h"
#include "DockCore/Storage/Paths.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace DockCore {

namespace {
/// All the profiles in the file; none when one of them cannot be read.
QList<Profile> profilesIn(const QString& path) {
    const QJsonValue json = JSONFile::read(path).value_or(QJsonValue());
    return JSONForm<QList<Profile>>::read(json).value_or(QList<Profile>());
}

AppSettings settingsIn(const QString& path) {
    return AppSettings::fromJson(JSONFile::read(path).value_or(QJsonValue())).value_or(AppSettings());
}

void saveIgnoringErrors(const QJsonValue& value, const QString& path) {
    try {
        JSONFile::save(value, path);
    } catch (const Error&) {
        // What is in memory counts for the rest of the run.
    }
}

QList<Profile>::const_iterator find(const QList<Profile>& profiles, const std::optional<QUuid>& id) {
    return std::find_if(profiles.cbegin(), profiles.cend(), [&id](const Profile& profile) { return profile.id == id; });
}
} // namespace

ProfileStore::ProfileStore(const Paths& paths, AppCatalog& catalog, Metadata& metadata, Clock& clock)
    : profiles(profilesIn(paths.profiles()))
    , settings(settingsIn(paths.settings()))
    , m_profilesFile(paths.profiles())
    , m_settingsFile(paths.settings()) {
    if (profiles.isEmpty()) {
        profiles = DefaultProfiles::make(catalog, metadata, clock.now());
        saveProfiles();
    }
    if (find(profiles, settings.activeProfileID) != profiles.cend())
        return;
    settings.activeProfileID = profiles.isEmpty() ? std::nullopt : std::optional(profiles.constFirst().id);
    saveSettings();
}

const Profile& ProfileStore::active() const {
    if (profiles.isEmpty())
        qFatal("There is no profile.");
    const auto named = find(profiles, settings.activeProfileID);
    return named == profiles.cend() ? profiles.constFirst() : *named;
}

bool ProfileStore::update(const Profile& profile) {
    const auto stored = std::ranges::find(profiles, profile.id, &Profile::id);
    if (stored == profiles.end() || *stored == profile)
        return false;
    *stored = profile;
    saveProfiles();
    return true;
}

Profile ProfileStore::add() {
    const auto isTaken = [this](const QString& name) {
        return std::ranges::find(std::as_const(profiles), name, &Profile::name) != profiles.cend();
    };
    QString name = u"New Profile"_s;
    for (int number = 2; isTaken(name); ++number)
        name = u"New Profile %1"_s.arg(number);
    profiles.append(Profile::make(name, u"sparkles"_s, {}, {}, 8, UsageWindow::week, true));
    saveProfiles();
    return profiles.constLast();
}

Profile ProfileStore::duplicate(const Profile& profile) {
    Profile copy = profile;
    copy.id = QUuid::createUuid();
    copy.name += u" Copy"_s;
    profiles.append(copy);
    saveProfiles();
    return copy;
}

bool ProfileStore::remove(QUuid profile) {
    QList<Profile> remaining = profiles;
    remaining.removeIf([&profile](const Profile& candidate) { return candidate.id == profile; });
    if (profiles.size() < 2 || remaining.isEmpty())
        return false;
    profiles = remaining;
    if (settings.activeProfileID == profile) {
        settings.activeProfileID = profiles.constFirst().id;
        saveSettings();
    }
    saveProfiles();
    return true;
}

void ProfileStore::saveProfiles() const {
    saveIgnoringErrors(JSONForm<QList<Profile>>::write(profiles), m_profilesFile);
}

void ProfileStore::saveSettings() const {
    saveIgnoringErrors(settings.toJson(), m_settingsFile);
}

} // namespace DockCore
