// A real little program with one window: it says the window's number and shows it until it is ended.

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <unistd.h>
#include <xcb/xcb.h>

namespace {
xcb_atom_t atom(xcb_connection_t* connection, const char* name) {
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<uint16_t>(std::strlen(name)), name);
    xcb_intern_atom_reply_t* const reply = xcb_intern_atom_reply(connection, cookie, nullptr);
    const xcb_atom_t atom = reply == nullptr ? xcb_atom_t{0} : reply->atom;
    std::free(reply);
    return atom;
}
} // namespace

int main() {
    xcb_connection_t* const connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection) != 0)
        return 1;
    const xcb_screen_t* const screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const xcb_window_t window = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, 200, 100, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    const auto process = static_cast<uint32_t>(getpid());
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, atom(connection, "_NET_WM_PID"), XCB_ATOM_CARDINAL,
                        32, 1, &process);
    xcb_map_window(connection, window);
    xcb_flush(connection);
    std::printf("%u\n", window);
    std::fflush(stdout);
    while (xcb_generic_event_t* const event = xcb_wait_for_event(connection))
        std::free(event);
    xcb_disconnect(connection);
    return 0;
}
