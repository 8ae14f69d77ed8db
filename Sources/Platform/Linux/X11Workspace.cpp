#include "Platform/Linux/X11Workspace.h"

#include "Platform/Linux/RunningProcess.h"
#include "Platform/Linux/X11Display.h"

#include <utility>

using namespace std::chrono_literals;

namespace Platform {

namespace {

/// Whoever asks often does not make us knock more often than this.
constexpr auto attemptInterval = 1s;

/// Whether somebody could sit at a display, be it one that we cannot reach.
bool hasDisplay() {
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

Kelvane::RunningApplication application(const X11Window& window, DockCore::Bundles& bundles) {
    Kelvane::RunningApplication running;
    running.isRegular = window.isOrdinary;
    if (const auto bundle = window.process ? RunningProcess::application(*window.process, bundles) : std::nullopt) {
        running.bundleID = bundle->bundleID;
        running.name = bundle->name;
    } else if (!window.name.isEmpty()) {
        running.name = window.name;
    }
    return running;
}

} // namespace

X11Workspace::X11Workspace(DockCore::Bundles& bundles, QObject* parent)
    : Workspace(parent)
    , m_bundles(bundles) {
    connect(&m_session, &SessionMonitor::paused, this, &Workspace::paused);
    connect(&m_session, &SessionMonitor::resumed, this, &Workspace::resumed);
    connectDisplay();
    m_lastAttempt.start();
}

X11Workspace::~X11Workspace() = default;

std::optional<Kelvane::RunningApplication> X11Workspace::frontApplication() {
    // Without the bus a locked screen would go unnoticed, and whoever is in front then need not be in use.
    if (!m_display || !m_session.isListening())
        return std::nullopt;
    const auto window = m_display->activeWindow();
    return window ? std::optional(application(*window, m_bundles)) : std::nullopt;
}

std::optional<std::chrono::duration<double>> X11Workspace::sinceLastInput() {
    reconnect();
    if (!m_display)
        return hasDisplay() ? std::nullopt : std::optional(std::chrono::duration<double>::max());
    const auto state = m_display->userState();
    if (state.screensSleep != m_screensSleep) {
        m_screensSleep = state.screensSleep;
        // The pause counts for the time that whoever asks is about to credit; the return only for what comes after.
        if (m_screensSleep)
            Q_EMIT paused();
        else
            QMetaObject::invokeMethod(this, &Workspace::resumed, Qt::QueuedConnection);
    }
    return state.sinceLastInput;
}

void X11Workspace::connectDisplay() {
    m_display = X11Display::open();
    if (!m_display)
        return;
    connect(m_display.get(), &X11Display::activeWindowChanged, this, &X11Workspace::announceFront);
    connect(m_display.get(), &X11Display::lost, this, &X11Workspace::dropDisplay);
    // Whoever is in front already did not come there now.
    if (const auto window = m_display->activeWindow()) {
        m_frontWindow = window->id;
        m_frontProcess = window->process;
    }
}

void X11Workspace::reconnect() {
    if (m_display && m_display->isBroken())
        dropDisplay();
    if (m_display && m_session.isListening())
        return;
    if (!m_lastAttempt.hasExpired(std::chrono::milliseconds(attemptInterval).count()))
        return;
    m_lastAttempt.start();
    m_session.reconnect();
    if (!m_display)
        connectDisplay();
}

void X11Workspace::dropDisplay() {
    if (!m_display)
        return;
    // It may be the one who is speaking.
    m_display->disconnect(this);
    m_display.release()->deleteLater();
    m_frontWindow.reset();
    m_frontProcess.reset();
    // Screens that slept do so no more as far as anybody can tell.
    if (std::exchange(m_screensSleep, false))
        QMetaObject::invokeMethod(this, &Workspace::resumed, Qt::QueuedConnection);
}

void X11Workspace::announceFront() {
    const auto window = m_display->activeWindow();
    if (!window)
        return;
    const bool isSame = window->id == m_frontWindow || (window->process && window->process == m_frontProcess);
    m_frontWindow = window->id;
    m_frontProcess = window->process;
    if (!isSame && m_session.isListening())
        Q_EMIT activated(application(*window, m_bundles));
}

} // namespace Platform
