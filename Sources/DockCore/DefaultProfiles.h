#pragma once

#include "DockCore/Profile.h"

#include <QList>

namespace DockCore {

class AppCatalog;

/// The five starter profiles, fitted to what is installed and was used of late.
namespace DefaultProfiles {

QList<Profile> make(AppCatalog& catalog);

} // namespace DefaultProfiles
} // namespace DockCore
