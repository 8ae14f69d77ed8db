#pragma once

#include "DockCore/Profile.h"
#include "DockCore/Settings.h"

namespace DockCore {

class AppCatalog;
class Clock;
class Metadata;
class Paths;

/// The user's profiles and settings, their two files, and the rules of the list: it is never empty, one profile is
/// active, a new one has a name of its own. Making a store loads both files, seeds the starter profiles where there are
/// none and repairs a dangling active profile. Errors of saving are ignored: the state in memory counts for the rest of
/// the run. Main thread only.
class ProfileStore {
public:
    ProfileStore(const Paths& paths, AppCatalog& catalog, Metadata& metadata, Clock& clock);

    QList<Profile> profiles;
    AppSettings settings;

    /// The profile that the settings name, else the first; fatal when there is none.
    const Profile& active() const;

    /// Replaces the profile with the same identifier and saves; false when none has it or nothing differs.
    bool update(const Profile& profile);
    /// Appends and saves a new profile: "New Profile", numbered from 2 where the name is taken.
    Profile add();
    /// Appends and saves a copy; its name may be that of another copy.
    Profile duplicate(const Profile& profile);
    /// Removes and saves, and makes the first remaining profile active in place of a removed one; false when there is
    /// only one profile. By value: the identifier may be part of the list that this changes.
    bool remove(QUuid profile);

    void saveProfiles() const;
    void saveSettings() const;

private:
    QString m_profilesFile;
    QString m_settingsFile;
};

} // namespace DockCore
