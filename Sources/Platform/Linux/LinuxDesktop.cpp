#include "Platform/Linux/LinuxDesktop.h"

#include <QByteArray>

#include <xcb/xcb.h>

namespace {
bool canReachXServer() {
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const bool isReached = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return isReached;
}
} // namespace

void LinuxDesktop::prepareEnvironment() {
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
        return;
    // The application object ends the process when the display it expects is not there.
    if (!canReachXServer())
        qputenv("QT_QPA_PLATFORM", "offscreen");
}
