#pragma once

#include "DockCore/Ports/Processes.h"

namespace Platform {

/// Starts programs the POSIX way, the same on every system that has it. Needs no event loop and keeps nothing, so that
/// any thread may call it, several at a time. The child has this process's environment, standard input and standard
/// error.
class PosixProcesses final : public DockCore::Processes {
public:
    std::optional<int> run(const QString& executable, const QStringList& arguments) override;
};

} // namespace Platform
