#pragma once

#include <QString>

/// Memory in bytes, as the system shares it out among the processes that use the same pages. By its number or as
/// "self"; 0 when there is no such process.
namespace Memory {

/// All that a process takes now.
double ofProcess(const QString& process);
/// What it has written to: the part that grows, and that does not depend on who else uses the same libraries.
double writtenBy(const QString& process);

} // namespace Memory
