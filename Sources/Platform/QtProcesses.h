#pragma once

#include "DockCore/Ports/Processes.h"

namespace Platform {

/// Starts programs through QProcess, the same on every system. Needs no event loop and keeps nothing, so that any
/// thread of Qt's may call it, several at a time. The child has this process's environment, standard input and standard
/// error.
class QtProcesses final : public DockCore::Processes {
public:
    std::optional<int> run(const QString& executable, const QStringList& arguments) override;
};

} // namespace Platform
