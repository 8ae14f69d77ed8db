#include "DockCore/DefaultProfiles.h"

#include "DockCore/AppCatalog.h"
#include "DockCore/SpotlightUsage.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace DockCore {

namespace {
const QStringList launcher = {u"com.apple.apps.launcher"_s, u"com.apple.launchpad.launcher"_s};
const QStringList mail = {u"com.apple.mail"_s, u"com.microsoft.Outlook"_s, u"com.apple.iCal"_s};
const QStringList chat = {u"com.tinyspeck.slackmacgap"_s, u"com.microsoft.teams2"_s, u"com.microsoft.teams"_s};
const QStringList leisure = {
    u"com.spotify.client"_s,    u"com.apple.Music"_s,     u"com.apple.TV"_s,    u"com.apple.Photos"_s,
    u"net.whatsapp.WhatsApp"_s, u"com.apple.MobileSMS"_s, u"com.hnc.Discord"_s, u"com.valvesoftware.steam"_s,
};
const QStringList developer = {
    u"com.apple.dt.Xcode"_s,
    u"com.microsoft.VSCode"_s,
    u"com.todesktop.230313mzl4w4u92"_s,
    u"dev.zed.Zed"_s,
    u"com.jetbrains.intellij"_s,
    u"com.jetbrains.pycharm"_s,
    u"com.google.android.studio"_s,
    u"com.apple.Terminal"_s,
    u"com.googlecode.iterm2"_s,
    u"com.mitchellh.ghostty"_s,
    u"dev.warp.Warp-Stable"_s,
    u"com.github.GitHubClient"_s,
    u"com.docker.docker"_s,
    u"com.postmanlabs.mac"_s,
};
const QStringList meeting = {
    u"us.zoom.xos"_s,     u"com.microsoft.teams2"_s, u"com.microsoft.teams"_s, u"com.cisco.webexmeetingsapp"_s,
    u"com.hnc.Discord"_s, u"com.apple.FaceTime"_s,
};
const QStringList planning = {u"com.apple.iCal"_s, u"com.apple.Notes"_s};
const QStringList outlook = {u"com.microsoft.Outlook"_s};

/// An application not opened for this long counts as one that is not used.
constexpr qint64 secondsRecent = 90LL * 24 * 60 * 60;

QStringList installed(const QStringList& bundleIDs, AppCatalog& catalog) {
    QStringList kept;
    for (const QString& bundleID : bundleIDs) {
        if (!kept.contains(bundleID) && catalog.isInstalled(bundleID))
            kept.append(bundleID);
    }
    return kept;
}

/// Of those installed, the ones opened of late, latest first; where none was, the installed ones as listed.
QStringList recent(const QStringList& bundleIDs, qsizetype most, AppCatalog& catalog, Metadata& metadata,
                   const QDateTime& now) {
    struct Use {
        QString bundleID;
        QDateTime lastUsed;
    };
    const QDateTime cutoff = now.addSecs(-secondsRecent);
    const QStringList present = installed(bundleIDs, catalog);
    QList<Use> uses;
    for (const QString& bundleID : present) {
        const std::optional<AppInfo> app = catalog.info(bundleID);
        if (!app)
            continue;
        const auto lastUsed = SpotlightUsage::lookup(metadata, app->path, UsageWindow::month, now).lastUsed;
        if (lastUsed && *lastUsed >= cutoff)
            uses.append({bundleID, *lastUsed});
    }
    if (uses.isEmpty())
        return present.first(std::min(most, present.size()));

    std::stable_sort(uses.begin(), uses.end(),
                     [](const Use& left, const Use& right) { return left.lastUsed > right.lastUsed; });
    QStringList latest;
    for (const Use& use : uses.first(std::min(most, uses.size())))
        latest.append(use.bundleID);
    return latest;
}
} // namespace

QList<Profile> DefaultProfiles::make(AppCatalog& catalog, Metadata& metadata, const QDateTime& now) {
    const QStringList launchers = installed(launcher, catalog);
    const QStringList first = launchers.first(std::min(launchers.size(), qsizetype(1)));
    const auto withRecent = [&](const QStringList& bundleIDs, qsizetype most) {
        return first + recent(bundleIDs, most, catalog, metadata, now);
    };
    return {
        Profile::make(u"Everyday"_s, u"sparkles"_s, first, {}, 12, UsageWindow::month, false),
        Profile::make(u"Work"_s, u"briefcase"_s, withRecent(mail + chat, 5), installed(leisure, catalog), 8,
                      UsageWindow::week, true),
        Profile::make(u"Coding"_s, u"chevron.left.forwardslash.chevron.right"_s, withRecent(developer, 4),
                      installed(leisure, catalog), 7, UsageWindow::week, true),
        Profile::make(u"Meeting"_s, u"video"_s, withRecent(meeting + planning, 4),
                      installed(leisure + developer, catalog), 3, UsageWindow::week, true),
        Profile::make(u"Personal"_s, u"house"_s, withRecent(leisure, 4), installed(chat + developer + outlook, catalog),
                      6, UsageWindow::month, true),
    };
}

} // namespace DockCore
