#pragma once

#include <QString>
#include <QStringList>

namespace DockCore {

/// Where the user's folders are and what lies in one. Any thread may call it, several at a time.
class Folders {
public:
    virtual ~Folders() = default;

    /// The current user's home folder, which need not exist.
    virtual QString home() = 0;
    /// The user's folder for application data, without this application's own name; empty when there is none.
    virtual QString applicationSupport() = 0;
    /// The paths of the immediate, visible entries of `folder` in the order the system lists them;
    /// none when it cannot be listed.
    virtual QStringList entries(const QString& folder) = 0;
};

} // namespace DockCore
