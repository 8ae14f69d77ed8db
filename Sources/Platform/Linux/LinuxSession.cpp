#include "Platform/Linux/LinuxSession.h"

#include <QByteArray>

#include <xcb/xcb.h>

namespace Platform {

namespace {

bool canReachXServer() {
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const bool isReached = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return isReached;
}

} // namespace

void LinuxSession::prepareEnvironment() {
    // The application object ends the process when the display it expects is not there.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && !qEnvironmentVariableIsSet("WAYLAND_DISPLAY") &&
        !canReachXServer())
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Where no screen says how dense it is, pictures are made for dense ones.
    if (qgetenv("QT_QPA_PLATFORM") == "offscreen" && !qEnvironmentVariableIsSet("QT_SCALE_FACTOR"))
        qputenv("QT_SCALE_FACTOR", "2");
}

} // namespace Platform
