#include "DockCore/ProfileStore.h"

#include "DockCore/AppCatalog.h"
#include "DockCore/DefaultProfiles.h"
#include "DockCore/Error.h"
#include "DockCore/Storage/JSONFile.h"
#include "DockCore/Storage/Paths.h"

#include <algorithm>

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

ProfileStore::ProfileStore()
    : profiles(profilesIn(Paths::profiles()))
    , settings(settingsIn(Paths::settings())) {
    if (profiles.isEmpty()) {
        profiles = DefaultProfiles::make(AppCatalog::shared());
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

void ProfileStore::saveProfiles() const {
    saveIgnoringErrors(JSONForm<QList<Profile>>::write(profiles), Paths::profiles());
}

void ProfileStore::saveSettings() const {
    saveIgnoringErrors(settings.toJson(), Paths::settings());
}

} // namespace DockCore
