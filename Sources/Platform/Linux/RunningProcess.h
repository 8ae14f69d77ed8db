#pragma once

#include "DockCore/AppInfo.h"

#include <QString>

#include <optional>

/// Which application a process on this machine belongs to. Keeps nothing; any thread may call it.
namespace Platform::RunningProcess {

/// The innermost application bundle around the program at `executable`; nothing when it lies in none.
std::optional<DockCore::AppInfo> applicationAround(const QString& executable, DockCore::Bundles& bundles);
/// The application whose program the process runs; nothing when the process is gone, belongs to somebody else or runs a
/// program outside any bundle.
std::optional<DockCore::AppInfo> application(qint64 process, DockCore::Bundles& bundles);

} // namespace Platform::RunningProcess
