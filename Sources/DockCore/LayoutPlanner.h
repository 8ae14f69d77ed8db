#pragma once

#include "DockCore/DockTile.h"
#include "DockCore/Profile.h"
#include "DockCore/Ranker.h"

namespace DockCore {

/// Decides what the Dock's applications should be: pinned group, small spacer if wanted, usage group. Exclusion beats
/// pinning, nothing is placed twice, an application already in the Dock keeps its tile. Reads and changes nothing else.
namespace LayoutPlanner {

QList<DockTile> plan(const Profile& profile, const QList<AppScore>& ranking, const QList<DockTile>& current,
                     AppCatalog& catalog);

} // namespace LayoutPlanner
} // namespace DockCore
