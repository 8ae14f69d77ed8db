#include "Platform/Linux/X11Workspace.h"

#include "DockCore/AppInfo.h"
#include "Platform/Linux/X11Display.h"

#include <QFile>

#include <filesystem>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Platform {

namespace {

/// Minimum interval between reconnect attempts.
constexpr auto attemptInterval = 1s;

/// Whether the session has a display, reachable or not.
bool hasDisplay() {
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

/// The innermost application bundle around the program at `executable`; nothing when it lies in none.
std::optional<DockCore::AppInfo> applicationAround(const QString& executable, DockCore::Bundles& bundles) {
    for (qsizetype end = executable.lastIndexOf(u'/'); end > 0; end = executable.lastIndexOf(u'/', end - 1)) {
        const QString folder = executable.first(end);
        if (!DockCore::isApplicationPath(folder))
            continue;
        if (const auto application = DockCore::AppInfo::fromBundle(folder, bundles))
            return application;
    }
    return std::nullopt;
}

/// The application whose program the process runs; nothing when the process is gone, belongs to another user or runs a
/// program outside any bundle.
std::optional<DockCore::AppInfo> applicationOf(qint64 process, DockCore::Bundles& bundles) {
    std::error_code error;
    const auto link = std::filesystem::read_symlink("/proc/" + std::to_string(process) + "/exe", error);
    if (error)
        return std::nullopt;
    // After an update of a running program the kernel appends " (deleted)" to the file name; the folders stay.
    return applicationAround(QFile::decodeName(QByteArray::fromStdString(link.native())), bundles);
}

Kelvane::RunningApplication application(const X11Window& window, DockCore::Bundles& bundles) {
    Kelvane::RunningApplication running;
    running.isRegular = window.isOrdinary;
    if (const auto bundle = window.process ? applicationOf(*window.process, bundles) : std::nullopt) {
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
    // Without the bus a locked screen would go unnoticed, and the front application might not be in use.
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
        // The pause applies to the time that the caller is about to credit; the resumption only to what follows.
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
    // The application that is already in front was not activated now.
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
    // May run inside the display's own signal, so delete later.
    m_display->disconnect(this);
    m_display.release()->deleteLater();
    m_frontWindow.reset();
    m_frontProcess.reset();
    // Without a display nothing says that the screens still sleep.
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
