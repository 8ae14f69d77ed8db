#pragma once

#include "DockCore/Ports/Folders.h"

namespace Platform {

/// The user's folders by the XDG base directory rules. The environment is read at every call; any thread may call it.
class LinuxFolders final : public DockCore::Folders {
public:
    /// `$HOME`, else the folder that the user database names, else "/".
    QString home() override;
    /// `$XDG_DATA_HOME` when it is an absolute path, else ".local/share" in the home folder.
    QString applicationSupport() override;
    /// Hidden are the names that begin with a dot.
    QStringList entries(const QString& folder) override;

    /// `$XDG_CONFIG_HOME` when it is an absolute path, else ".config" in the home folder.
    static QString configuration();
};

} // namespace Platform
