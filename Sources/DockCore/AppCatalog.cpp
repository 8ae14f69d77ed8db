#include "DockCore/AppCatalog.h"

#include "DockCore/Ports/Bundles.h"
#include "DockCore/Ports/Folders.h"

#include <QCollator>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace DockCore {

namespace {
void sortByName(QList<AppInfo>& apps) {
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::stable_sort(apps.begin(), apps.end(), [&collator](const AppInfo& left, const AppInfo& right) {
        return collator.compare(left.name, right.name) < 0;
    });
}
} // namespace

AppCatalog::AppCatalog(Bundles& bundles, Folders& folders)
    : m_bundles(bundles)
    , m_folders(folders) {}

QStringList AppCatalog::searchFolders(Folders& folders) {
    return {u"/Applications"_s,        u"/Applications/Utilities"_s,
            u"/System/Applications"_s, u"/System/Applications/Utilities"_s,
            u"/Applications/Setapp"_s, folders.home() + u"/Applications"_s};
}

const QSet<QString>& AppCatalog::ignored() {
    static const QSet<QString> identifiers = {
        u"com.apple.finder"_s,
        u"com.apple.dock"_s,
        u"com.apple.loginwindow"_s,
        u"com.apple.SecurityAgent"_s,
        u"com.apple.notificationcenterui"_s,
        u"com.apple.controlcenter"_s,
        u"com.apple.Spotlight"_s,
        u"com.apple.systemuiserver"_s,
        u"com.apple.UserNotificationCenter"_s,
        u"com.apple.coreservices.uiagent"_s,
        u"com.apple.ScreenSaver.Engine"_s,
        u"com.apple.WindowManager"_s,
        u"com.apple.wallpaper.agent"_s,
        u"org.kelvane.Kelvane"_s,
    };
    return identifiers;
}

QList<AppInfo> AppCatalog::scan() {
    QList<AppInfo> apps;
    QSet<QString> seen;
    for (const QString& folder : searchFolders(m_folders)) {
        for (const QString& path : m_folders.entries(folder)) {
            if (!isApplicationPath(path))
                continue;
            const std::optional<AppInfo> app = AppInfo::fromBundle(path, m_bundles);
            if (!app || ignored().contains(app->bundleID) || seen.contains(app->bundleID))
                continue;
            seen.insert(app->bundleID);
            apps.append(*app);
        }
    }
    sortByName(apps);
    return apps;
}

QList<AppInfo> AppCatalog::installedApps(Scan mode) {
    if (mode == Scan::cached) {
        const std::lock_guard guard(m_lock);
        if (m_installedCache)
            return *m_installedCache;
    }
    // Reads files, so the lock is not held.
    const QList<AppInfo> apps = scan();
    const std::lock_guard guard(m_lock);
    m_installedCache = apps;
    for (const AppInfo& app : apps)
        keep(app);
    return apps;
}

std::optional<AppInfo> AppCatalog::info(const QString& bundleID) {
    {
        const std::lock_guard guard(m_lock);
        if (const auto known = m_cache.constFind(bundleID); known != m_cache.constEnd())
            return *known;
    }
    const std::optional<QString> path = m_bundles.path(bundleID);
    const std::optional<AppInfo> app = path ? AppInfo::fromBundle(*path, m_bundles) : std::nullopt;
    const std::lock_guard guard(m_lock);
    m_cache.insert(bundleID, app);
    return app;
}

std::optional<AppInfo> AppCatalog::add(const QString& path) {
    const std::optional<AppInfo> app = isApplicationPath(path) ? AppInfo::fromBundle(path, m_bundles) : std::nullopt;
    if (!app)
        return std::nullopt;
    m_bundles.remember(path);
    const std::lock_guard guard(m_lock);
    keep(*app);
    return app;
}

void AppCatalog::keep(const AppInfo& app) {
    std::optional<AppInfo>& known = m_cache[app.bundleID];
    if (!known)
        known = app;
}

bool AppCatalog::isInstalled(const QString& bundleID) {
    return info(bundleID).has_value();
}

} // namespace DockCore
