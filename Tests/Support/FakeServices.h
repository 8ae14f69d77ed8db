#pragma once

#include "DockCore/AppCatalog.h"
#include "DockCore/DockStore.h"
#include "DockCore/Ports/Bundles.h"
#include "DockCore/Ports/Clock.h"
#include "DockCore/Ports/Folders.h"
#include "DockCore/Ports/Metadata.h"
#include "DockCore/Ports/Preferences.h"
#include "DockCore/Ports/Processes.h"
#include "DockCore/ProfileStore.h"
#include "DockCore/Services.h"
#include "DockCore/SnapshotStore.h"
#include "DockCore/Storage/Paths.h"

#include <QMap>
#include <QSet>
#include <QTemporaryDir>

#include <functional>
#include <mutex>

/// In-memory stand-ins for the ports of the logic. They keep state, count what was asked and can be told to fail.
namespace Fakes {

class Preferences : public DockCore::Preferences {
public:
    bool synchronize() override;
    std::optional<DockCore::PropertyList> copyValue(const QString& key) override;
    void setValue(const QString& key, const std::optional<DockCore::PropertyList>& value) override;

    /// Held for every question; a test that looks into `stored` while a change runs holds it too.
    mutable std::mutex lock;
    /// What the domain holds.
    DockCore::PropertyList::Dictionary stored;
    bool refusesToSave = false;
    /// Happens between a value's being set and whatever the one who set it does next.
    std::function<void()> afterSet;
    int synchronizations = 0;
    int saves = 0;

private:
    QMap<QString, std::optional<DockCore::PropertyList>> m_pending;
};

class Processes : public DockCore::Processes {
public:
    struct Run {
        QString executable;
        QStringList arguments;
        bool operator==(const Run&) const = default;
    };
    std::optional<int> run(const QString& executable, const QStringList& arguments) override;

    /// Held while a run is noted; a test that looks at `runs` while a change runs holds it too.
    mutable std::mutex lock;
    QList<Run> runs;
    /// What a run gives; by default 0.
    std::function<std::optional<int>(const Run&)> answer;
};

class Bundles : public DockCore::Bundles {
public:
    std::optional<QString> identifier(const QString& path) override;
    QString displayName(const QString& path) override;
    std::optional<QString> path(const QString& identifier) override;
    void remember(const QString& path) override { remembered += path; }

    /// Puts a bundle at `path`; without an identifier it is a bundle that has none.
    void add(const QString& path, const std::optional<QString>& identifier, const QString& displayName = {});
    void remove(const QString& path);

    /// How often each path was read and each identifier looked up.
    QMap<QString, int> reads;
    QMap<QString, int> lookups;
    QStringList remembered;
    /// Whether an identifier is found that is capitalised otherwise.
    enum class Capitals { distinct, equal };
    Capitals capitals = Capitals::distinct;

private:
    struct Bundle {
        std::optional<QString> identifier;
        QString displayName;
    };
    QMap<QString, Bundle> m_bundles;
    std::mutex m_lock;
};

class Folders : public DockCore::Folders {
public:
    QString home() override { return homePath; }
    QString applicationSupport() override { return supportPath; }
    QStringList entries(const QString& folder) override;

    QString homePath = QStringLiteral("/Users/x");
    QString supportPath;
    /// By folder, in the order they are listed.
    QMap<QString, QStringList> listing;
};

class Metadata : public DockCore::Metadata {
public:
    std::optional<Item> item(const QString& path) override;

    QMap<QString, Item> items;
    QMap<QString, int> lookups;

private:
    std::mutex m_lock;
};

class Clock : public DockCore::Clock {
public:
    QDateTime now() override;
    std::chrono::nanoseconds elapsed() override;
    /// Does not wait: moves the clock.
    void sleep(std::chrono::milliseconds duration) override;

    /// Time passes.
    void advance(std::chrono::nanoseconds duration);
    /// Somebody sets the wall clock; no time passes.
    void set(const QDateTime& wall);

    QList<std::chrono::milliseconds> sleeps;
    /// How much time passes from one look at the time of day to the next.
    std::chrono::milliseconds betweenLooks = std::chrono::milliseconds(0);

private:
    std::mutex m_lock;
    QDateTime m_wall = QDateTime::fromString(QStringLiteral("2026-03-11T10:00:00Z"), Qt::ISODate);
    std::chrono::nanoseconds m_elapsed = std::chrono::hours(100);
};

/// All of them, with a support folder of its own that is deleted afterwards, and the objects over them that most tests
/// need. The process environment is left without "KELVANE_HOME" and "KELVANE_DRY_RUN".
class World {
public:
    World();

    DockCore::Services services() { return {preferences, processes, bundles, folders, metadata, clock}; }
    /// Resolved at the first call, so that a test can set the environment before.
    const DockCore::Paths& paths();
    DockCore::ProfileStore profileStore() { return DockCore::ProfileStore(paths(), catalog, metadata, clock); }
    DockCore::SnapshotStore snapshotStore(const QString& folder) {
        return DockCore::SnapshotStore(folder, dockStore, clock);
    }

    /// Installs an application: bundle, listing of its folder, and gives its path.
    QString install(const QString& identifier, const QString& name,
                    const QString& folder = QStringLiteral("/Applications"));
    /// Lets `identifier` have been opened on these moments, as the operating system's record has it.
    void opened(const QString& path, const QList<QDateTime>& dates);

    Preferences preferences;
    Processes processes;
    Bundles bundles;
    Folders folders;
    Metadata metadata;
    Clock clock;
    QTemporaryDir directory;
    DockCore::AppCatalog catalog = DockCore::AppCatalog(bundles, folders);
    DockCore::DockStore dockStore = DockCore::DockStore(preferences, processes, clock);

private:
    std::optional<DockCore::Paths> m_paths;
};

} // namespace Fakes
