#include "DockCore/AppCatalog.h"

#include "DockCore/Ports/Bundles.h"
#include "DockCore/Ports/Folders.h"
#include "DockCore/Services.h"

#include <QCollator>

#include <algorithm>
#include <list>

using namespace Qt::StringLiterals;

namespace DockCore {

namespace {
bool isApplication(const QString& path) {
    const QStringView name = QStringView(path).sliced(path.lastIndexOf(u'/') + 1);
    return name.size() > 4 && name.endsWith(u".app");
}

void sortByName(QList<AppInfo>& apps) {
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::stable_sort(apps.begin(), apps.end(), [&collator](const AppInfo& left, const AppInfo& right) {
        return collator.compare(left.name, right.name) < 0;
    });
}

/// Without the catalog's lock: this reads files.
QList<AppInfo> scan() {
    Folders& folders = Services::current().folders;
    QList<AppInfo> apps;
    QSet<QString> seen;
    for (const QString& folder : AppCatalog::searchFolders()) {
        for (const QString& path : folders.entries(folder)) {
            if (!isApplication(path))
                continue;
            const std::optional<AppInfo> app = AppInfo::fromBundle(path);
            if (!app || AppCatalog::ignored().contains(app->bundleID) || seen.contains(app->bundleID))
                continue;
            seen.insert(app->bundleID);
            apps.append(*app);
        }
    }
    sortByName(apps);
    return apps;
}
} // namespace

AppCatalog& AppCatalog::shared() {
    static std::mutex lock;
    // The earlier ones stay: a thread may still be asking one when another platform is installed.
    static std::list<AppCatalog> catalogs;
    static quint64 generation = 0;

    const std::lock_guard guard(lock);
    if (catalogs.empty() || generation != Services::generation()) {
        generation = Services::generation();
        catalogs.emplace_back();
    }
    return catalogs.back();
}

QStringList AppCatalog::searchFolders() {
    return {u"/Applications"_s,        u"/Applications/Utilities"_s,
            u"/System/Applications"_s, u"/System/Applications/Utilities"_s,
            u"/Applications/Setapp"_s, Services::current().folders.home() + u"/Applications"_s};
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

QList<AppInfo> AppCatalog::installedApps(Scan mode) {
    if (mode == Scan::cached) {
        const std::lock_guard guard(m_lock);
        if (m_installedCache)
            return *m_installedCache;
    }
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
    const std::optional<QString> path = Services::current().bundles.path(bundleID);
    const std::optional<AppInfo> app = path ? AppInfo::fromBundle(*path) : std::nullopt;
    const std::lock_guard guard(m_lock);
    m_cache.insert(bundleID, app);
    return app;
}

void AppCatalog::add(const AppInfo& app) {
    Services::current().bundles.remember(app.path);
    const std::lock_guard guard(m_lock);
    keep(app);
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
