#pragma once

#include "DockCore/Profile.h"
#include "DockCore/Settings.h"

namespace DockCore {

/// The user's profiles and settings and their two files. Making one loads both, seeds the starter profiles where there
/// are none and mends a dangling active profile. Main thread only.
class ProfileStore {
public:
    ProfileStore();

    QList<Profile> profiles;
    AppSettings settings;

    /// The profile that the settings name, else the first; fatal when there is none.
    const Profile& active() const;

    /// Errors of both are ignored: what is in memory counts for the rest of the run.
    void saveProfiles() const;
    void saveSettings() const;
};

} // namespace DockCore
