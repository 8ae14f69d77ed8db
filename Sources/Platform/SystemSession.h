#pragma once

#include <QtGlobal>

/// The application's side of the system this is built for, under one name for the program that installs it.
#ifdef Q_OS_MACOS
#include "Platform/MacOS/MacOSSession.h"
namespace Platform {
using SystemSession = MacOSSession;
}
#else
#include "Platform/Linux/LinuxSession.h"
namespace Platform {
using SystemSession = LinuxSession;
}
#endif
