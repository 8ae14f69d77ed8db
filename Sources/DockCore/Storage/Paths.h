#pragma once

#include <QString>

namespace DockCore {

class Folders;

/// Where this application keeps its files: "KELVANE_HOME" when the environment has it, else "Kelvane" in the user's
/// folder for application data. The support folder is made by the constructor, the one for snapshots when it is asked
/// for. A plain value.
class Paths {
public:
    /// Fatal when the computer has no folder for application data.
    explicit Paths(Folders& folders);

    const QString& support() const { return m_support; }
    QString usage() const;
    QString profiles() const;
    QString settings() const;
    /// Made anew whenever it is missing.
    QString snapshots() const;

    bool operator==(const Paths&) const = default;

private:
    QString m_support;
};

} // namespace DockCore
