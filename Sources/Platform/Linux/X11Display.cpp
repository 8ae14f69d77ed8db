#include "Platform/Linux/X11Display.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <span>
#include <vector>
#include <xcb/dpms.h>
#include <xcb/screensaver.h>
#include <xcb/xcb.h>

namespace Platform {

namespace {

/// Replies and events are handed out by the library for us to free.
struct Free {
    void operator()(void* memory) const { std::free(memory); }
};
template <typename T>
using Owned = std::unique_ptr<T, Free>;

/// Names longer than this are cut; in four-byte units, as the protocol counts.
constexpr quint32 longestName = 256;
/// How many events are taken before other work gets its turn.
constexpr int eventsPerTurn = 4096;

/// The reply to `cookie`, or null when the server refused or has gone. A window may end at any moment, so a refusal is
/// an answer like others.
template <typename Reply, typename Cookie>
Owned<Reply> reply(xcb_connection_t* connection, Cookie cookie,
                   Reply* (*ask)(xcb_connection_t*, Cookie, xcb_generic_error_t**)) {
    xcb_generic_error_t* error = nullptr;
    Owned<Reply> answer(ask(connection, cookie, &error));
    const Owned<xcb_generic_error_t> owner(error);
    return answer;
}

Owned<xcb_get_property_reply_t> propertyReply(xcb_connection_t* connection, xcb_get_property_cookie_t cookie) {
    return reply(connection, cookie, xcb_get_property_reply);
}

/// The numbers in a property of 32-bit items; none when it is of another type.
std::span<const quint32> numbers(const xcb_get_property_reply_t* property, xcb_atom_t type) {
    if (!property || property->type != type || property->format != 32)
        return {};
    return {static_cast<const quint32*>(xcb_get_property_value(property)), property->value_len};
}

QByteArray bytes(const xcb_get_property_reply_t* property) {
    if (!property || property->format != 8)
        return {};
    return {static_cast<const char*>(xcb_get_property_value(property)), xcb_get_property_value_length(property)};
}

/// "instance", a zero, "class", a zero: the class.
QByteArray windowClass(const QByteArray& value) {
    const auto parts = value.split('\0');
    return parts.size() > 1 ? parts.at(1) : QByteArray();
}

bool hasExtension(xcb_connection_t* connection, xcb_extension_t* extension) {
    const auto* data = xcb_get_extension_data(connection, extension);
    return data && data->present;
}

} // namespace

void X11Display::Disconnect::operator()(xcb_connection_t* connection) const {
    xcb_disconnect(connection);
}

std::unique_ptr<X11Display> X11Display::open() {
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        return nullptr;
    int screen = 0;
    Connection connection(xcb_connect(nullptr, &screen));
    if (xcb_connection_has_error(connection.get()))
        return nullptr;
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection.get()));
    for (; screens.rem > 0 && screen > 0; --screen)
        xcb_screen_next(&screens);
    if (screens.rem == 0)
        return nullptr;
    std::unique_ptr<X11Display> display(new X11Display(std::move(connection), screens.data->root));
    return display->isBroken() ? nullptr : std::move(display);
}

X11Display::X11Display(Connection connection, quint32 root)
    : m_connection(std::move(connection))
    , m_root(root)
    , m_notifier(xcb_get_file_descriptor(m_connection.get()), QSocketNotifier::Read) {
    connect(&m_notifier, &QSocketNotifier::activated, this, &X11Display::receive);
    auto* const server = m_connection.get();

    static constexpr std::array<const char*, atomCount> names = {
        "_NET_ACTIVE_WINDOW",
        "_NET_WM_WINDOW_TYPE",
        "_NET_WM_PID",
        "_NET_WM_NAME",
        "_NET_WM_WINDOW_TYPE_NORMAL",
        "_NET_WM_WINDOW_TYPE_DIALOG",
        "_NET_WM_WINDOW_TYPE_UTILITY",
        "_NET_WM_WINDOW_TYPE_TOOLBAR",
        "_NET_WM_WINDOW_TYPE_DESKTOP",
        "_NET_WM_WINDOW_TYPE_DOCK",
        "_NET_WM_WINDOW_TYPE_NOTIFICATION",
        "_NET_WM_WINDOW_TYPE_SPLASH",
        "_NET_WM_WINDOW_TYPE_MENU",
        "_NET_WM_WINDOW_TYPE_DROPDOWN_MENU",
        "_NET_WM_WINDOW_TYPE_POPUP_MENU",
        "_NET_WM_WINDOW_TYPE_TOOLTIP",
        "_NET_WM_WINDOW_TYPE_COMBO",
        "_NET_WM_WINDOW_TYPE_DND",
    };
    // All questions first, then all answers: one way there and back.
    xcb_prefetch_extension_data(server, &xcb_screensaver_id);
    xcb_prefetch_extension_data(server, &xcb_dpms_id);
    std::array<xcb_intern_atom_cookie_t, atomCount> cookies = {};
    for (size_t i = 0; i < names.size(); ++i)
        cookies[i] = xcb_intern_atom(server, false, static_cast<quint16>(std::strlen(names[i])), names[i]);
    const quint32 events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(server, m_root, XCB_CW_EVENT_MASK, &events);
    for (size_t i = 0; i < names.size(); ++i)
        if (const auto atom = reply(server, cookies[i], xcb_intern_atom_reply))
            m_atoms[i] = atom->atom;

    m_countsIdleTime = hasExtension(server, &xcb_screensaver_id);
    if (hasExtension(server, &xcb_dpms_id)) {
        const auto capable = reply(server, xcb_dpms_capable(server), xcb_dpms_capable_reply);
        m_knowsScreenPower = capable && capable->capable;
    }
    noteQueuedEvents();
}

X11Display::~X11Display() = default;

bool X11Display::isBroken() const {
    return xcb_connection_has_error(m_connection.get()) != 0;
}

std::optional<X11Window> X11Display::activeWindow() {
    auto* const server = m_connection.get();
    const auto active = propertyReply(
        server, xcb_get_property(server, false, m_root, m_atoms[activeWindowAtom], XCB_ATOM_WINDOW, 0, 1));
    const auto windows = numbers(active.get(), XCB_ATOM_WINDOW);
    if (windows.empty() || windows.front() == XCB_WINDOW_NONE) {
        noteQueuedEvents();
        return std::nullopt;
    }
    X11Window window;
    window.id = windows.front();
    const auto ask = [&](xcb_atom_t name, xcb_atom_t type, quint32 length) {
        return xcb_get_property(server, false, window.id, name, type, 0, length);
    };
    const auto typeCookie = ask(m_atoms[windowTypeAtom], XCB_ATOM_ATOM, 32);
    const auto processCookie = ask(m_atoms[processAtom], XCB_ATOM_CARDINAL, 1);
    const auto classCookie = ask(XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, longestName);
    const auto nameCookie = ask(m_atoms[nameAtom], XCB_GET_PROPERTY_TYPE_ANY, longestName);
    const auto types = propertyReply(server, typeCookie);
    const auto process = propertyReply(server, processCookie);
    const auto className = propertyReply(server, classCookie);
    const auto title = propertyReply(server, nameCookie);
    noteQueuedEvents();
    // The window ended while it was looked at.
    if (!types || !process || !className || !title)
        return std::nullopt;

    // The first type that is known counts; a window without one is an ordinary one.
    for (const quint32 type : numbers(types.get(), XCB_ATOM_ATOM)) {
        const auto known = std::find(m_atoms.begin() + ordinaryAtom, m_atoms.end(), type);
        if (known == m_atoms.end())
            continue;
        window.isOrdinary = known < m_atoms.begin() + desktopAtom;
        break;
    }
    const auto processes = numbers(process.get(), XCB_ATOM_CARDINAL);
    if (!processes.empty() && processes.front() > 0 && processes.front() <= std::numeric_limits<qint32>::max())
        window.process = processes.front();
    window.name = QString::fromUtf8(windowClass(bytes(className.get())));
    if (window.name.isEmpty())
        window.name = QString::fromUtf8(bytes(title.get()));
    return window;
}

X11Display::UserState X11Display::userState() {
    auto* const server = m_connection.get();
    UserState state;
    xcb_dpms_info_cookie_t powerCookie = {};
    if (m_knowsScreenPower)
        powerCookie = xcb_dpms_info(server);
    if (m_countsIdleTime) {
        const auto info = reply(server, xcb_screensaver_query_info(server, m_root), xcb_screensaver_query_info_reply);
        if (info)
            state.sinceLastInput = std::chrono::milliseconds(info->ms_since_user_input);
    }
    if (m_knowsScreenPower) {
        const auto power = reply(server, powerCookie, xcb_dpms_info_reply);
        state.screensSleep = power && power->state && power->power_level != XCB_DPMS_DPMS_MODE_ON;
    }
    noteQueuedEvents();
    return state;
}

void X11Display::receive() {
    m_isReceiptDue = false;
    int taken = 0;
    while (taken < eventsPerTurn) {
        const Owned<xcb_generic_event_t> event(xcb_poll_for_event(m_connection.get()));
        if (!event)
            break;
        note(event.get());
        ++taken;
    }
    if (isBroken()) {
        m_notifier.setEnabled(false);
        Q_EMIT lost();
        return;
    }
    // What is left was read from the socket already, so the notifier would not speak of it.
    if (taken == eventsPerTurn) {
        m_isReceiptDue = true;
        QMetaObject::invokeMethod(this, &X11Display::receive, Qt::QueuedConnection);
    }
    if (m_activeWindowChanged) {
        m_activeWindowChanged = false;
        Q_EMIT activeWindowChanged();
    }
}

void X11Display::noteQueuedEvents() {
    // Waiting for a reply also reads events, of which the notifier then does not speak. They are announced later, for
    // whoever asked is still at work.
    while (const Owned<xcb_generic_event_t> event{xcb_poll_for_queued_event(m_connection.get())})
        note(event.get());
    if (m_activeWindowChanged && !m_isReceiptDue) {
        m_isReceiptDue = true;
        QMetaObject::invokeMethod(this, &X11Display::receive, Qt::QueuedConnection);
    }
}

void X11Display::note(const void* event) {
    const auto* const generic = static_cast<const xcb_generic_event_t*>(event);
    if ((generic->response_type & 0x7f) != XCB_PROPERTY_NOTIFY)
        return;
    const auto* const change = static_cast<const xcb_property_notify_event_t*>(event);
    if (change->window == m_root && change->atom == m_atoms[activeWindowAtom])
        m_activeWindowChanged = true;
}

} // namespace Platform
