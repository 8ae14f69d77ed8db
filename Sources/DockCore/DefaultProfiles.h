#pragma once

#include "DockCore/Profile.h"

#include <QDateTime>
#include <QList>

namespace DockCore {

class AppCatalog;
class Metadata;

/// The five starter profiles, fitted to what is installed and was used in the 90 days before `now`.
namespace DefaultProfiles {

QList<Profile> make(AppCatalog& catalog, Metadata& metadata, const QDateTime& now);

} // namespace DefaultProfiles
} // namespace DockCore
