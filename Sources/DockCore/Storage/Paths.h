#pragma once

#include <QString>

namespace DockCore {

/// Where this application keeps its files. The support folder is resolved and made once per process. Any thread may
/// ask.
namespace Paths {

/// "KELVANE_HOME" when the environment has it, else "Kelvane" in the user's folder for application data.
QString support();
QString usage();
QString profiles();
QString settings();
/// Made anew whenever it is missing.
QString snapshots();

} // namespace Paths
} // namespace DockCore
