#pragma once

class QTextStream;

namespace DockCore {
class Paths;
}

namespace Kelvane {

class LoginItem;

/// Takes back what the application asked of the system, for a person who is about to remove it. Main thread.
namespace Uninstall {

/// Removes the login item and writes to `output` what was done and what is left for the person to keep or delete.
/// Gives the exit status for the process: 1 when the system refused.
int run(LoginItem& loginItem, const DockCore::Paths& paths, QTextStream& output);

} // namespace Uninstall

} // namespace Kelvane
