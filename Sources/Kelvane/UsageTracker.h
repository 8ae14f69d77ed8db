#pragma once

#include "Kelvane/Ports/Workspace.h"

#include <QObject>
#include <QTimer>

#include <chrono>

namespace DockCore {
class Clock;
class UsageStore;
} // namespace DockCore

namespace Kelvane {

/// Credits the time that passes to the application in front while the user is there, and counts activations.
/// It decides nothing about ranking. Main thread only.
class UsageTracker : public QObject {
    Q_OBJECT

public:
    /// Samples go to `usage`; `workspace` may be null, then nothing is ever credited. All outlive the tracker.
    UsageTracker(DockCore::UsageStore& usage, DockCore::Clock& clock, Workspace* workspace);

    /// Begins to listen and to sample every ten seconds. Called once; there is no stop.
    void start();
    /// Off, nothing is counted; the time that passes meanwhile is never credited later.
    bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled);
    /// One tick: credits the time since the last one if everything speaks for it.
    void sample();
    /// Writes what was counted so far and starts the count to the next save anew.
    void flush();

private:
    void applicationActivated(const RunningApplication& application);
    void pause();
    void resume();

    DockCore::UsageStore& m_usage;
    DockCore::Clock& m_clock;
    Workspace* m_workspace;
    QTimer m_timer = QTimer(this);
    /// The moment of the last tick or return, on the clock that nobody sets.
    std::chrono::nanoseconds m_lastTick;
    /// One flag for all reasons to pause: the last word counts.
    bool m_screenLocked = false;
    qint64 m_ticksSinceSave = 0;
    bool m_enabled = true;
};

} // namespace Kelvane
