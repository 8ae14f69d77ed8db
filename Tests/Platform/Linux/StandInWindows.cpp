#include "StandInWindows.h"

#include <cstdlib>
#include <xcb/xcb.h>

namespace {
void setText(xcb_connection_t* connection, quint32 window, quint32 name, quint32 type, const QByteArray& value) {
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, name, type, 8, static_cast<quint32>(value.size()),
                        value.constData());
}
} // namespace

void StandInWindows::Disconnect::operator()(xcb_connection_t* connection) const {
    xcb_disconnect(connection);
}

StandInWindows::StandInWindows()
    : m_connection(xcb_connect(nullptr, nullptr)) {
    if (xcb_connection_has_error(m_connection.get()))
        qFatal("no X server to make windows on");
    m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection.get())).data->root;
    m_activeWindow = atom("_NET_ACTIVE_WINDOW");
}

quint32 StandInWindows::atom(const QByteArray& name) {
    xcb_connection_t* const connection = m_connection.get();
    xcb_intern_atom_reply_t* const reply = xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 0, static_cast<quint16>(name.size()), name.constData()), nullptr);
    const quint32 atom = reply == nullptr ? 0 : reply->atom;
    std::free(reply);
    return atom;
}

quint32 StandInWindows::make(const Properties& properties) {
    xcb_connection_t* const connection = m_connection.get();
    const quint32 window = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, m_root, 0, 0, 10, 10, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                      XCB_COPY_FROM_PARENT, 0, nullptr);
    if (properties.process)
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, atom("_NET_WM_PID"), XCB_ATOM_CARDINAL, 32, 1,
                            &*properties.process);
    if (!properties.type.isEmpty()) {
        const quint32 type = atom(properties.type);
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, atom("_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM, 32,
                            1, &type);
    }
    if (!properties.className.isEmpty())
        setText(connection, window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, properties.className);
    if (!properties.title.isEmpty())
        setText(connection, window, atom("_NET_WM_NAME"), atom("UTF8_STRING"), properties.title);
    finish();
    return window;
}

void StandInWindows::destroy(quint32 window) {
    xcb_destroy_window(m_connection.get(), window);
    finish();
}

void StandInWindows::activate(quint32 window) {
    activateSoon(window);
    finish();
}

void StandInWindows::activateSoon(quint32 window) {
    xcb_change_property(m_connection.get(), XCB_PROP_MODE_REPLACE, m_root, m_activeWindow, XCB_ATOM_WINDOW, 32, 1,
                        &window);
}

void StandInWindows::finish() {
    std::free(xcb_get_input_focus_reply(m_connection.get(), xcb_get_input_focus(m_connection.get()), nullptr));
}
