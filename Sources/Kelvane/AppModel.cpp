#include "Kelvane/AppModel.h"

#include "DockCore/LayoutPlanner.h"
#include "DockCore/Ports/Clock.h"
#include "Kelvane/Ports/LoginItem.h"
#include "Kelvane/Ports/Workspace.h"
#include "Kelvane/Schedule.h"
#include "Kelvane/UsageTracker.h"

#include <QSignalBlocker>

#include <utility>

using namespace DockCore;
using namespace Qt::StringLiterals;

namespace Kelvane {

namespace {
/// Property lists nest up to 512 levels; a thread of the pool must hold that on every system.
constexpr uint backgroundStackSize = 8U << 20U;
} // namespace

AppModel::AppModel(const Services& services, const Paths& paths, Workspace* workspace, LoginItem* loginItem)
    : m_services(services)
    , m_paths(paths)
    , m_workspace(workspace)
    , m_loginItem(loginItem)
    , m_catalog(services.bundles, services.folders)
    , m_dock(services.preferences, services.processes, services.clock)
    , m_usage(paths.usage())
    , m_store(paths, m_catalog, services.metadata, services.clock)
    , m_snapshotStore(paths.snapshots(), m_dock, services.clock)
    , m_snapshots(m_snapshotStore.all())
    , m_launchAtLogin(loginItem != nullptr && loginItem->isEnabled()) {
    m_pool.setMaxThreadCount(2);
    m_pool.setStackSize(backgroundStackSize);
    m_autoTimer.setTimerType(Qt::CoarseTimer);
    m_autoTimer.setInterval(Schedule::checkInterval);
    connect(&m_autoTimer, &QTimer::timeout, this, &AppModel::autoCheck);
}

AppModel::~AppModel() {
    m_isClosing = true;
    m_pool.waitForDone();
    const QSignalBlocker blocker(this);
    if (m_unrecorded)
        record(*m_unrecorded);
}

UsageTracker& AppModel::tracker() {
    if (!m_tracker)
        m_tracker = std::make_unique<UsageTracker>(m_usage, m_services.clock, m_workspace);
    return *m_tracker;
}

// What the views show

void AppModel::setPane(Pane pane) {
    if (m_pane == pane)
        return;
    m_pane = pane;
    Q_EMIT paneChanged();
}

void AppModel::setOnboardingStep(int step) {
    if (m_onboardingStep == step)
        return;
    m_onboardingStep = step;
    Q_EMIT onboardingStepChanged();
}

void AppModel::setCapturing(bool capturing) {
    m_capturing = capturing;
}

void AppModel::show(const Toast& toast) {
    m_toast = toast;
    Q_EMIT toastChanged();
}

void AppModel::dismiss(const Toast& toast) {
    if (m_toast != toast)
        return;
    m_toast.reset();
    Q_EMIT toastChanged();
}

bool AppModel::proposalMatchesDock() const {
    return layoutSignature(m_proposal) == layoutSignature(m_current);
}

std::optional<Snapshot> AppModel::previousSnapshot() const {
    return m_snapshotStore.previous(m_current);
}

// Starting and refreshing

void AppModel::captureOriginal() {
    if (m_snapshotStore.original())
        return;
    try {
        m_snapshotStore.capture(u"Before Kelvane"_s, SnapshotStore::Mark::original);
    } catch (const Error&) {
        // The next start tries again, because there is no original yet.
    }
    reloadSnapshots();
}

void AppModel::start() {
    captureOriginal();
    tracker().setEnabled(settings().trackingEnabled);
    tracker().start();
    refresh();
    m_autoTimer.start();
}

void AppModel::readCurrent() {
    m_current = m_dock.currentTiles();
    Q_EMIT currentChanged();
}

void AppModel::readLoginItem() {
    const bool isOn = m_loginItem != nullptr && m_loginItem->isEnabled();
    if (std::exchange(m_launchAtLogin, isOn) != isOn)
        Q_EMIT launchAtLoginChanged();
}

void AppModel::refresh(std::function<void()> then, std::function<void()> overtaken) {
    readCurrent();
    readLoginItem();
    detectManualChange();
    const qint64 generation = ++m_refreshGeneration;
    m_isRefreshing = true;
    if (const auto previous = std::exchange(m_overtaken, std::move(overtaken)))
        previous();
    // A pool task must be copyable and a store is not, so the task shares one private copy.
    m_pool.start([this, generation, usage = std::make_shared<const UsageStore>(m_usage.copy()),
                  then = std::move(then)] {
        const QList<AppInfo> installed = m_catalog.installedApps(AppCatalog::Scan::refresh);
        QMap<UsageWindow, QList<AppScore>> rankings;
        for (const UsageWindow window : allUsageWindows()) {
            if (m_isClosing || generation != m_refreshGeneration)
                return;
            rankings[window] = Ranker::rank(*usage, window, m_catalog, &m_services.metadata, m_services.clock.now());
        }
        QMetaObject::invokeMethod(
            this,
            [this, generation, installed, rankings, then] {
                if (generation != m_refreshGeneration)
                    return;
                m_isRefreshing = false;
                m_overtaken = {};
                m_installed = installed;
                m_rankings = rankings;
                Q_EMIT installedChanged();
                Q_EMIT rankingsChanged();
                recomputeProposal();
                if (then)
                    then();
                Q_EMIT refreshed();
            },
            Qt::QueuedConnection);
    });
}

void AppModel::refreshAndApply(Notify notify, Reply reply) {
    refresh([this, notify, reply] { applyActive(notify, reply); },
            [reply] {
                if (reply)
                    reply({.refused = true});
            });
}

void AppModel::refreshAndResume(Reply reply) {
    refresh([this, reply] { resumeAuto(reply); },
            [reply] {
                if (reply)
                    reply({.refused = true});
            });
}

void AppModel::recomputeProposal() {
    m_proposal = plan(activeProfile());
    Q_EMIT proposalChanged();
}

DockDiff AppModel::proposedChange() const {
    return m_proposal.isEmpty() ? DockDiff() : DockDiff(m_current, m_proposal);
}

QString AppModel::emptyText(const Profile& profile) {
    return u"%1 has no apps yet. Add some in Profiles."_s.arg(profile.name);
}

QList<DockTile> AppModel::plan(const Profile& profile) const {
    return LayoutPlanner::plan(profile, m_rankings.value(profile.window), m_current, m_catalog);
}

// Changing the Dock

void AppModel::activate(const QUuid& profile, Apply apply) {
    m_store.settings.activeProfileID = profile;
    saveSettings();
    recomputeProposal();
    if (apply == Apply::yes)
        refreshAndApply(Notify::always);
}

bool AppModel::refuseWhileWorking(const Reply& reply) const {
    if (m_isWorking && reply)
        reply({.refused = true});
    return m_isWorking;
}

void AppModel::conclude(const Outcome& outcome, Notify notify, const Reply& reply) {
    if (notify == Notify::always)
        show({outcome.text, outcome.isError});
    if (reply)
        reply(outcome);
}

void AppModel::applyActive(Notify notify, Reply reply) {
    if (refuseWhileWorking(reply))
        return;
    const Profile profile = activeProfile();
    readCurrent();
    recomputeProposal();
    if (proposalMatchesDock()) {
        recordApplied(layoutSignature(m_current));
        conclude({.text = u"Your Dock already matches %1."_s.arg(profile.name)}, notify, reply);
    } else if (m_proposal.isEmpty()) {
        conclude({.text = emptyText(profile), .isError = true}, notify, reply);
    } else {
        run({.snapshot = {},
             .tiles = m_proposal,
             .profile = profile.name,
             .notify = notify,
             .reply = std::move(reply)});
    }
}

void AppModel::restore(const Snapshot& snapshot, Reply reply) {
    if (!refuseWhileWorking(reply))
        run({.snapshot = snapshot, .tiles = {}, .profile = {}, .reply = std::move(reply)});
}

void AppModel::restorePrevious(Reply reply) {
    readCurrent();
    if (const std::optional<Snapshot> snapshot = previousSnapshot())
        restore(*snapshot, std::move(reply));
    else
        conclude({.text = u"There is no earlier Dock to go back to yet."_s}, Notify::always, reply);
}

void AppModel::run(const DockChange& change) {
    m_isWorking = true;
    Q_EMIT isWorkingChanged();
    m_pool.start([this, change] {
        QString failure;
        try {
            perform(change);
            m_unrecorded = change;
        } catch (const Error& error) {
            failure = error.description();
        }
        QMetaObject::invokeMethod(
            this,
            [this, change, failure] {
                const bool failed = !std::exchange(m_unrecorded, std::nullopt);
                const Outcome outcome = failed ? Outcome{.text = failure, .isError = true}
                                               : Outcome{.text = record(change), .changed = true};
                // A failure is shown also when the change was not asked for.
                conclude(outcome, failed ? Notify::always : change.notify, {});
                m_isWorking = false;
                Q_EMIT isWorkingChanged();
                reloadSnapshots();
                refresh();
                if (change.reply)
                    change.reply(outcome);
            },
            Qt::QueuedConnection);
    });
}

void AppModel::perform(const DockChange& change) {
    if (change.snapshot)
        return m_snapshotStore.restore(*change.snapshot);
    // Saved first, so that a failed write always leaves a way back.
    m_snapshotStore.capture(u"Before "_s + change.profile, SnapshotStore::Mark::ordinary);
    m_dock.write(change.tiles);
}

QString AppModel::record(const DockChange& change) {
    if (!change.snapshot) {
        recordApplied(layoutSignature(change.tiles));
        return u"Dock updated for %1."_s.arg(change.profile);
    }
    if (settings().autoUpdate != AutoUpdate::off)
        m_store.settings.autoPaused = true;
    m_store.settings.lastAppliedSignature.reset();
    saveSettings();
    return u"Dock restored to “%1”."_s.arg(change.snapshot->reason);
}

void AppModel::recordApplied(const QStringList& signature) {
    m_store.settings.lastAppliedSignature = signature;
    m_store.settings.lastApplied = m_services.clock.now();
    m_store.settings.autoPaused = false;
    m_appliedElapsed = m_services.clock.elapsed();
    saveSettings();
}

void AppModel::reloadSnapshots() {
    m_snapshots = m_snapshotStore.all();
    Q_EMIT snapshotsChanged();
}

void AppModel::removeSnapshot(const Snapshot& snapshot) {
    m_snapshotStore.remove(snapshot);
    reloadSnapshots();
}

// Profiles

void AppModel::update(const Profile& profile) {
    if (!m_store.update(profile))
        return;
    Q_EMIT profilesChanged();
    if (profile.id == settings().activeProfileID)
        recomputeProposal();
}

Profile AppModel::addProfile() {
    const Profile profile = m_store.add();
    Q_EMIT profilesChanged();
    return profile;
}

Profile AppModel::duplicate(const Profile& profile) {
    const Profile copy = m_store.duplicate(profile);
    Q_EMIT profilesChanged();
    return copy;
}

void AppModel::removeProfile(QUuid profile) {
    const std::optional<QUuid> active = settings().activeProfileID;
    if (!m_store.remove(profile))
        return;
    if (settings().activeProfileID != active) {
        Q_EMIT settingsChanged();
        recomputeProposal();
    }
    Q_EMIT profilesChanged();
}

// Automatic updates

std::optional<Schedule::Seconds> AppModel::sinceApplied() const {
    // Within one run the monotonic clock counts, so that a wall clock set forward makes nothing due early.
    if (m_appliedElapsed)
        return m_services.clock.elapsed() - *m_appliedElapsed;
    if (settings().lastApplied)
        return std::chrono::milliseconds(settings().lastApplied->msecsTo(m_services.clock.now()));
    return std::nullopt;
}

void AppModel::autoCheck() {
    if (!Schedule::isDue(settings(), sinceApplied()))
        return;
    if (m_workspace != nullptr && !Schedule::isIdle(m_workspace->sinceLastInput()))
        return;
    tracker().flush();
    refresh([this] {
        if (!settings().autoPaused)
            applyActive(Notify::failuresOnly);
    });
}

void AppModel::detectManualChange() {
    // While a change of our own runs, the Dock may hold either list.
    if (m_isWorking || !Schedule::isChangedByHand(settings(), layoutSignature(m_current)))
        return;
    m_store.settings.autoPaused = true;
    saveSettings();
}

void AppModel::resumeAuto(Reply reply) {
    m_store.settings.autoPaused = false;
    saveSettings();
    applyActive(Notify::always, std::move(reply));
}

void AppModel::setAutoUpdate(AutoUpdate interval) {
    m_store.settings.autoUpdate = interval;
    if (interval == AutoUpdate::off)
        m_store.settings.autoPaused = false;
    saveSettings();
}

// Settings

void AppModel::saveSettings() {
    m_store.saveSettings();
    Q_EMIT settingsChanged();
}

void AppModel::setTracking(bool on) {
    m_store.settings.trackingEnabled = on;
    tracker().setEnabled(on);
    saveSettings();
}

void AppModel::setLaunchAtLogin(bool on) {
    if (m_loginItem == nullptr)
        return;
    if (const std::optional<QString> reason = m_loginItem->setEnabled(on))
        show({u"macOS didn't allow that: "_s + *reason, true});
    m_launchAtLogin = m_loginItem->isEnabled();
    Q_EMIT launchAtLoginChanged();
}

void AppModel::finishOnboarding(Apply apply) {
    m_store.settings.onboarded = true;
    saveSettings();
    if (apply == Apply::yes)
        applyActive(Notify::always);
}

void AppModel::eraseUsage() {
    m_usage.erase();
    refresh();
    show({u"Usage history erased."_s});
}

} // namespace Kelvane
