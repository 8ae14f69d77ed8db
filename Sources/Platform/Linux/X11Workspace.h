#pragma once

#include "Kelvane/Ports/Workspace.h"
#include "Platform/Linux/SessionMonitor.h"

#include <QElapsedTimer>

#include <memory>

namespace DockCore {
class Bundles;
}

namespace Platform {

class X11Display;

/// The desktop of an X11 session. X server and session bus may be missing, go and come back: each question is the
/// occasion to look for them again, so that waiting for them wakes nobody.
class X11Workspace final : public Kelvane::Workspace {
    Q_OBJECT

public:
    /// `bundles` names the application of a process; it outlives the workspace.
    explicit X11Workspace(DockCore::Bundles& bundles, QObject* parent = nullptr);
    ~X11Workspace() override;

    std::optional<Kelvane::RunningApplication> frontApplication() override;
    std::optional<std::chrono::duration<double>> sinceLastInput() override;

private:
    void connectDisplay();
    void reconnect();
    void dropDisplay();
    void announceFront();

    DockCore::Bundles& m_bundles;
    SessionMonitor m_session;
    std::unique_ptr<X11Display> m_display;
    QElapsedTimer m_lastAttempt;
    /// The window and process that came to the front last. Moments without an active window in between, as window
    /// managers make them while the focus moves, change nothing about that.
    std::optional<quint32> m_frontWindow;
    std::optional<qint64> m_frontProcess;
    bool m_screensSleep = false;
};

} // namespace Platform
