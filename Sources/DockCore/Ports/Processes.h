#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace DockCore {

/// Runs other programs to their end. Any thread may call it; the calling thread waits.
class Processes {
public:
    virtual ~Processes() = default;

    /// Runs the program at the absolute path `executable`, its standard output thrown away, and waits.
    /// Gives the exit status, or nothing when it could not be started or was ended by a signal.
    virtual std::optional<int> run(const QString& executable, const QStringList& arguments) = 0;
};

} // namespace DockCore
