#pragma once

#include "DockCore/AppCatalog.h"
#include "DockCore/DockDiff.h"
#include "DockCore/DockStore.h"
#include "DockCore/ProfileStore.h"
#include "DockCore/Ranker.h"
#include "DockCore/Services.h"
#include "DockCore/SnapshotStore.h"
#include "DockCore/Storage/Paths.h"
#include "DockCore/UsageStore.h"
#include "Kelvane/Pane.h"

#include <QMap>
#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace Kelvane {

class LoginItem;
class UsageTracker;
class Workspace;

/// A message that the window shows for a moment. A plain value.
struct Toast {
    QString text;
    bool isError = false;
    bool operator==(const Toast&) const = default;
};

/// How an operation on the Dock ended. A plain value.
struct Outcome {
    /// The toast's text, also where none was shown; empty when there was nothing to say.
    QString text = {};
    bool isError = false;
    /// The Dock was written.
    bool changed = false;
    /// Nothing was done, because another change was running or a later refresh overtook the one before it.
    bool refused = false;
    bool operator==(const Outcome&) const = default;
};

/// The driver of the application: it owns the stores and all state that menu, window and command line show, and only it
/// rewrites the Dock. Slow work runs on a thread pool over copies; its results come back to the main thread, where
/// every function here is called. `main` owns the only instance.
class AppModel : public QObject {
    Q_OBJECT

public:
    /// `workspace` and `loginItem` are null where there is no desktop: nothing is tracked then, and automatic updates
    /// do not depend on input. All ports outlive the model.
    AppModel(const DockCore::Services& services, const DockCore::Paths& paths, Workspace* workspace,
             LoginItem* loginItem);
    /// Waits for running background work and records what a change of the Dock did. No signal or reply follows.
    ~AppModel() override;

    const DockCore::Services& services() const { return m_services; }
    const DockCore::Paths& paths() const { return m_paths; }
    DockCore::AppCatalog& catalog() const { return m_catalog; }

    // State, with a signal for each change.
    const QList<DockCore::DockTile>& current() const { return m_current; }
    const QList<DockCore::DockTile>& proposal() const { return m_proposal; }
    /// What applying the proposal would change. Before the first one, and for a profile that yields none, that is
    /// nothing: such a Dock is never applied.
    DockCore::DockDiff proposedChange() const;
    /// What is said of a profile that yields no Dock.
    static QString emptyText(const DockCore::Profile& profile);
    const QMap<DockCore::UsageWindow, QList<DockCore::AppScore>>& rankings() const { return m_rankings; }
    const QList<DockCore::Snapshot>& snapshots() const { return m_snapshots; }
    const QList<DockCore::AppInfo>& installed() const { return m_installed; }
    const QList<DockCore::Profile>& profiles() const { return m_store.profiles; }
    const DockCore::AppSettings& settings() const { return m_store.settings; }
    Pane pane() const { return m_pane; }
    void setPane(Pane pane);
    std::optional<Toast> toast() const { return m_toast; }
    /// Clears the toast if it is still this one.
    void dismiss(const Toast& toast);
    int onboardingStep() const { return m_onboardingStep; }
    void setOnboardingStep(int step);
    bool isCapturing() const { return m_capturing; }
    void setCapturing(bool capturing);
    bool isWorking() const { return m_isWorking; }
    bool launchAtLogin() const { return m_launchAtLogin; }
    const DockCore::UsageStore& usage() const { return m_usage; }
    UsageTracker& tracker();

    /// The profile that the settings name, else the first.
    const DockCore::Profile& activeProfile() const { return m_store.active(); }
    bool proposalMatchesDock() const;
    /// The snapshot that `restorePrevious` would bring back, by the Dock as last read.
    std::optional<DockCore::Snapshot> previousSnapshot() const;

    /// Starts the resident application: saves the original Dock, starts the tracker and the schedule, refreshes. Once.
    void start();
    /// Saves the Dock as the original if none was saved yet; a failure is left for the next start.
    void captureOriginal();
    /// Reads the Dock, ranks in the background, then proposes. `then` runs afterwards on the main thread. A later
    /// refresh overtakes this one: then it publishes nothing, and `overtaken` runs in place of `then`.
    void refresh(std::function<void()> then = {}, std::function<void()> overtaken = {});
    /// A refresh has started and not yet published.
    bool isRefreshing() const { return m_isRefreshing; }
    void recomputeProposal();
    QList<DockCore::DockTile> plan(const DockCore::Profile& profile) const;

    enum class Apply { no, yes };
    /// Which outcomes show a toast.
    enum class Notify { failuresOnly, always };
    /// Called once, on the main thread, when the operation is over; at once when there is nothing to wait for.
    using Reply = std::function<void(const Outcome&)>;
    /// Refreshes, then brings the Dock in line with the active profile; refused where a later refresh overtakes it.
    void refreshAndApply(Notify notify, Reply reply = {});
    /// Refreshes, then ends a pause of automatic updates; refused where a later refresh overtakes it.
    void refreshAndResume(Reply reply = {});
    /// Makes a profile the active one; with `Apply::yes` refreshes and then brings the Dock in line.
    void activate(const QUuid& profile, Apply apply);
    /// Brings the Dock in line with the active profile; nothing while another change runs.
    void applyActive(Notify notify, Reply reply = {});
    /// Puts a saved Dock back; nothing while another change runs. Automatic updates pause after it.
    void restore(const DockCore::Snapshot& snapshot, Reply reply = {});
    void restorePrevious(Reply reply = {});
    void removeSnapshot(const DockCore::Snapshot& snapshot);

    void update(const DockCore::Profile& profile);
    DockCore::Profile addProfile();
    DockCore::Profile duplicate(const DockCore::Profile& profile);
    /// The last profile stays.
    void removeProfile(QUuid profile);

    void setTracking(bool on);
    void setLaunchAtLogin(bool on);
    void setAutoUpdate(DockCore::AutoUpdate interval);
    void resumeAuto(Reply reply = {});
    /// One check of the schedule: applies silently if an update is due and the user is idle.
    void autoCheck();
    /// Ends the first run; with `Apply::yes` applies the active profile at once.
    void finishOnboarding(Apply apply);
    void eraseUsage();

Q_SIGNALS:
    void currentChanged();
    void proposalChanged();
    void rankingsChanged();
    void snapshotsChanged();
    void installedChanged();
    void profilesChanged();
    void settingsChanged();
    void paneChanged();
    void toastChanged();
    void onboardingStepChanged();
    void isWorkingChanged();
    void launchAtLoginChanged();
    /// A refresh has published and its continuation has run.
    void refreshed();

private:
    /// A change of the Dock: an apply when `snapshot` is absent, else a restore.
    struct DockChange {
        std::optional<DockCore::Snapshot> snapshot;
        /// What an apply writes, and the name of its profile.
        QList<DockCore::DockTile> tiles;
        QString profile;
        Notify notify = Notify::always;
        Reply reply;
    };
    /// Runs a change in the background, then records it, shows its outcome, refreshes and replies, on the main thread.
    void run(const DockChange& change);
    /// Background; throws Error.
    void perform(const DockChange& change);
    /// Records a change that succeeded; gives the sentence for the user.
    QString record(const DockChange& change);
    void conclude(const Outcome& outcome, Notify notify, const Reply& reply);
    bool refuseWhileWorking(const Reply& reply) const;

    void readCurrent();
    void readLoginItem();
    void detectManualChange();
    void recordApplied(const QStringList& signature);
    /// Time since the Dock was last applied or confirmed; nothing when that never happened.
    std::optional<std::chrono::duration<double>> sinceApplied() const;
    void show(const Toast& toast);
    void reloadSnapshots();
    void saveSettings();

    DockCore::Services m_services;
    DockCore::Paths m_paths;
    Workspace* m_workspace;
    LoginItem* m_loginItem;
    /// Its caches are not part of the model's state, so a const model may ask it.
    mutable DockCore::AppCatalog m_catalog;
    DockCore::DockStore m_dock;
    DockCore::UsageStore m_usage;
    DockCore::ProfileStore m_store;
    DockCore::SnapshotStore m_snapshotStore;
    std::unique_ptr<UsageTracker> m_tracker;

    QList<DockCore::DockTile> m_current;
    QList<DockCore::DockTile> m_proposal;
    QMap<DockCore::UsageWindow, QList<DockCore::AppScore>> m_rankings;
    QList<DockCore::Snapshot> m_snapshots;
    QList<DockCore::AppInfo> m_installed;
    Pane m_pane = Pane::dock;
    std::optional<Toast> m_toast;
    int m_onboardingStep = 0;
    bool m_capturing = false;
    bool m_isWorking = false;
    bool m_launchAtLogin = false;

    QTimer m_autoTimer = QTimer(this);
    /// When this process last applied or confirmed the Dock, on the monotonic clock.
    std::optional<std::chrono::nanoseconds> m_appliedElapsed;
    std::atomic<qint64> m_refreshGeneration = 0;
    bool m_isRefreshing = false;
    /// What to run when another refresh starts before the running one has published.
    std::function<void()> m_overtaken;
    /// The last change of the Dock, from its end in the background until it is recorded.
    std::optional<DockChange> m_unrecorded;
    /// Set by the destructor, so that a background scan ends early.
    std::atomic<bool> m_isClosing = false;
    QThreadPool m_pool;
};

} // namespace Kelvane
