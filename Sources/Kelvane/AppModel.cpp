#include "Kelvane/AppModel.h"

#include "DockCore/AppCatalog.h"
#include "DockCore/DockStore.h"
#include "DockCore/LayoutPlanner.h"
#include "DockCore/Ports/Clock.h"
#include "DockCore/Services.h"
#include "DockCore/Storage/Paths.h"
#include "Kelvane/Ports/LoginItem.h"
#include "Kelvane/Ports/Workspace.h"
#include "Kelvane/UsageTracker.h"

#include <QSignalBlocker>

#include <algorithm>
#include <utility>

using namespace DockCore;
using namespace Qt::StringLiterals;

namespace Kelvane {

namespace {
// Property lists nest up to 512 levels; a thread of the pool must hold that everywhere.
constexpr uint backgroundStackSize = 8U << 20U;
} // namespace

AppModel::AppModel(Workspace* workspace, LoginItem* loginItem)
    : m_workspace(workspace)
    , m_loginItem(loginItem)
    , m_usage(Paths::usage())
    , m_snapshotStore(Paths::snapshots())
    , m_snapshots(m_snapshotStore.all())
    , m_launchAtLogin(loginItem != nullptr && loginItem->isEnabled()) {
    m_pool.setMaxThreadCount(2);
    m_pool.setStackSize(backgroundStackSize);
}

AppModel::~AppModel() {
    m_isClosing = true;
    m_pool.waitForDone();
    if (!m_unrecorded)
        return;
    const QSignalBlocker nobodyListens(this);
    m_unrecorded();
}

UsageTracker& AppModel::tracker() {
    if (!m_tracker)
        m_tracker = std::make_unique<UsageTracker>(m_usage, m_workspace);
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
    m_snapshots = m_snapshotStore.all();
    Q_EMIT snapshotsChanged();
}

void AppModel::start() {
    captureOriginal();
    tracker().setEnabled(settings().trackingEnabled);
    tracker().start();
    refresh();
    startSchedule();
}

void AppModel::readCurrent() {
    m_current = DockStore::currentTiles();
    Q_EMIT currentChanged();
}

void AppModel::readLoginItem() {
    const bool isOn = m_loginItem != nullptr && m_loginItem->isEnabled();
    if (std::exchange(m_launchAtLogin, isOn) != isOn)
        Q_EMIT launchAtLoginChanged();
}

void AppModel::refresh(std::function<void()> then) {
    readCurrent();
    readLoginItem();
    detectManualChange();
    const qint64 generation = ++m_refreshGeneration;
    // A pool task must be copyable, a store must not be: the task shares the one private copy.
    m_pool.start(
        [this, generation, usage = std::make_shared<const UsageStore>(m_usage.copy()), then = std::move(then)] {
            AppCatalog& catalog = AppCatalog::shared();
            const QList<AppInfo> installed = catalog.installedApps(AppCatalog::Scan::refresh);
            QMap<UsageWindow, QList<AppScore>> rankings;
            for (const UsageWindow window : allUsageWindows()) {
                // What was overtaken would publish nothing.
                if (m_isClosing || generation != m_refreshGeneration)
                    return;
                rankings[window] =
                    Ranker::rank(*usage, window, catalog, Ranker::Spotlight::include, Services::current().clock.now());
            }
            QMetaObject::invokeMethod(
                this,
                [this, generation, installed, rankings, then] {
                    if (generation != m_refreshGeneration)
                        return;
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
    return LayoutPlanner::plan(profile, m_rankings.value(profile.window), m_current, AppCatalog::shared());
}

// Changing the Dock

void AppModel::activate(const QUuid& profile, Apply apply) {
    m_store.settings.activeProfileID = profile;
    saveSettings();
    recomputeProposal();
    if (apply == Apply::yes)
        refresh([this] { applyActive(Notify::always); });
}

void AppModel::conclude(const Outcome& outcome, Notify notify, const Reply& reply) {
    if (notify == Notify::always)
        show({outcome.text, outcome.isError});
    if (reply)
        reply(outcome);
}

void AppModel::applyActive(Notify notify, Reply reply) {
    if (m_isWorking) {
        if (reply)
            reply({.refused = true});
        return;
    }
    const Profile profile = activeProfile();
    readCurrent();
    recomputeProposal();
    if (proposalMatchesDock()) {
        recordApplied(layoutSignature(m_current));
        conclude({.text = u"Your Dock already matches %1."_s.arg(profile.name)}, notify, reply);
        return;
    }
    if (m_proposal.isEmpty()) {
        conclude({.text = emptyText(profile), .isError = true}, notify, reply);
        return;
    }
    const QList<DockTile> proposal = m_proposal;
    const auto work = [this, proposal, reason = u"Before "_s + profile.name] {
        m_snapshotStore.capture(reason, SnapshotStore::Mark::ordinary);
        DockStore::write(proposal);
    };
    const auto done = [this, proposal, name = profile.name] {
        recordApplied(layoutSignature(proposal));
        return u"Dock updated for %1."_s.arg(name);
    };
    runDockChange(work, done, notify, std::move(reply));
}

void AppModel::restore(const Snapshot& snapshot, Reply reply) {
    if (m_isWorking) {
        if (reply)
            reply({.refused = true});
        return;
    }
    const auto done = [this, snapshot] {
        if (settings().autoUpdate != AutoUpdate::off)
            m_store.settings.autoPaused = true;
        m_store.settings.lastAppliedSignature.reset();
        saveSettings();
        return u"Dock restored to “%1”."_s.arg(snapshot.reason);
    };
    runDockChange([this, snapshot] { m_snapshotStore.restore(snapshot); }, done, Notify::always, std::move(reply));
}

void AppModel::restorePrevious(Reply reply) {
    readCurrent();
    if (const std::optional<Snapshot> snapshot = previousSnapshot())
        restore(*snapshot, std::move(reply));
    else
        conclude({.text = u"There is no earlier Dock to go back to yet."_s}, Notify::always, reply);
}

void AppModel::runDockChange(std::function<void()> work, std::function<QString()> done, Notify notify, Reply reply) {
    m_isWorking = true;
    Q_EMIT isWorkingChanged();
    m_pool.start([this, work = std::move(work), done = std::move(done), notify, reply = std::move(reply)] {
        std::optional<QString> failure;
        try {
            work();
            m_unrecorded = done;
        } catch (const Error& error) {
            failure = error.description();
        }
        QMetaObject::invokeMethod(
            this,
            [this, failure, notify, reply] {
                const Outcome outcome = failure ? Outcome{.text = *failure, .isError = true}
                                                : Outcome{.text = std::exchange(m_unrecorded, {})(), .changed = true};
                // A failed change is worth a word even when nobody asked for it.
                conclude(outcome, failure ? Notify::always : notify, {});
                m_isWorking = false;
                m_snapshots = m_snapshotStore.all();
                Q_EMIT isWorkingChanged();
                Q_EMIT snapshotsChanged();
                refresh();
                if (reply)
                    reply(outcome);
            },
            Qt::QueuedConnection);
    });
}

void AppModel::removeSnapshot(const Snapshot& snapshot) {
    m_snapshotStore.remove(snapshot);
    m_snapshots = m_snapshotStore.all();
    Q_EMIT snapshotsChanged();
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
