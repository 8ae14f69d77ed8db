#pragma once

#include <QLockFile>
#include <QString>

namespace Kelvane {

/// The right to change the files of one support folder: one process has it at a time, the application for its whole
/// life, a command while it runs. A process that crashed holds it no longer. It is given up with this object.
class InstanceLock {
public:
    enum class State {
        acquired,
        /// Another process has it.
        busy,
        /// The folder takes no lock file, so nothing can be saved there by anyone.
        unavailable
    };

    explicit InstanceLock(const QString& supportFolder);

    State tryAcquire();
    void release() { m_file.unlock(); }

private:
    /// Whether its maker ended before it could write who it was; nobody would ever take the file away.
    bool isAbandoned() const;

    QLockFile m_file;
};

} // namespace Kelvane
