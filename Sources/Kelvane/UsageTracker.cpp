#include "Kelvane/UsageTracker.h"

#include "DockCore/Ports/Clock.h"
#include "DockCore/UsageStore.h"

namespace Kelvane {

using namespace std::chrono_literals;

namespace {

constexpr auto tickInterval = 10s;
/// A later tick means that the machine slept or the process was stopped, so the front application is unknown.
constexpr auto elapsedLimit = 30s;
/// Time without input after which the user counts as away.
constexpr auto idleLimit = 300s;
constexpr qint64 ticksPerSave = 6;

} // namespace

UsageTracker::UsageTracker(DockCore::UsageStore& usage, DockCore::Clock& clock, Workspace* workspace)
    : m_usage(usage)
    , m_clock(clock)
    , m_workspace(workspace)
    , m_lastTick(m_clock.elapsed()) {
    m_timer.setInterval(tickInterval);
    // A coarse timer fires within half a second and together with the other coarse ones, so that an idle machine wakes
    // once for all of them.
    m_timer.setTimerType(Qt::CoarseTimer);
    connect(&m_timer, &QTimer::timeout, this, &UsageTracker::sample);
}

void UsageTracker::start() {
    if (m_workspace) {
        connect(m_workspace, &Workspace::activated, this, &UsageTracker::applicationActivated);
        connect(m_workspace, &Workspace::paused, this, &UsageTracker::pause);
        connect(m_workspace, &Workspace::resumed, this, &UsageTracker::resume);
    }
    m_lastTick = m_clock.elapsed();
    m_timer.start();
}

void UsageTracker::setEnabled(bool enabled) {
    // Between two ticks the time off would otherwise be credited by the next one.
    if (enabled && !m_enabled)
        m_lastTick = m_clock.elapsed();
    m_enabled = enabled;
}

void UsageTracker::sample() {
    // Asked before anything else, because the answer may bring a pause with it.
    const auto idle = m_workspace ? m_workspace->sinceLastInput() : std::nullopt;
    const auto now = m_clock.elapsed();
    const auto elapsed = now - m_lastTick;
    m_lastTick = now;
    if (!m_enabled || m_screenLocked || elapsed >= elapsedLimit || !idle || *idle >= idleLimit)
        return;
    const auto front = m_workspace->frontApplication();
    if (!front || !front->isRegular || !front->bundleID)
        return;
    m_usage.addSeconds(std::chrono::duration<double>(elapsed).count(), *front->bundleID, front->name, m_clock.now());
    if (++m_ticksSinceSave >= ticksPerSave)
        flush();
}

void UsageTracker::flush() {
    m_ticksSinceSave = 0;
    m_usage.save(m_clock.now());
}

void UsageTracker::applicationActivated(const RunningApplication& application) {
    if (m_enabled && application.isRegular && application.bundleID)
        m_usage.addActivation(*application.bundleID, application.name, m_clock.now());
}

void UsageTracker::pause() {
    m_screenLocked = true;
}

void UsageTracker::resume() {
    m_screenLocked = false;
    m_lastTick = m_clock.elapsed();
}

} // namespace Kelvane
