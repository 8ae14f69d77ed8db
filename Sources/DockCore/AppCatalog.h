#pragma once

#include "DockCore/AppInfo.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QStringList>

#include <mutex>
#include <optional>

namespace DockCore {

class Bundles;
class Folders;

/// Which applications are installed. Answers are kept; a scan happens only on request or the first time.
/// Any thread may call it.
class AppCatalog {
public:
    AppCatalog(Bundles& bundles, Folders& folders);

    /// In this order; where an application lies twice, the copy in the earlier folder counts.
    static QStringList searchFolders(Folders& folders);
    /// The Finder, the Dock, system agents and this application: never listed, ranked or placed.
    static const QSet<QString>& ignored();

    /// By name, case ignored, as the user's language sorts. `refresh` scans the folders anew.
    enum class Scan { cached, refresh };
    QList<AppInfo> installedApps(Scan mode = Scan::cached);
    /// The application with this identifier wherever the computer knows it; a miss is remembered until a scan finds it.
    std::optional<AppInfo> info(const QString& bundleID);
    bool isInstalled(const QString& bundleID);
    /// Adds the application in the bundle at `path`, wherever that is, for this and later processes; nothing when it is
    /// no application.
    std::optional<AppInfo> add(const QString& path);

private:
    QList<AppInfo> scan();
    /// Requires the lock; an entry that is known to be installed stays as it is.
    void keep(const AppInfo& app);

    Bundles& m_bundles;
    Folders& m_folders;
    std::mutex m_lock;
    QHash<QString, std::optional<AppInfo>> m_cache;
    std::optional<QList<AppInfo>> m_installedCache;
};

} // namespace DockCore
