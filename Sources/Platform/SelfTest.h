#pragma once

namespace Platform {

/// Asks the running system for everything this program needs of it and prints a table that a person can send back. It
/// reads the real Dock and changes nothing of it. Gives the exit status for the process: 0 when all is there. Main
/// thread, with an application object.
int runSelfTest();

} // namespace Platform
