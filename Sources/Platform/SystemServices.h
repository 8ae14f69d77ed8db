#pragma once

#include <QtGlobal>

/// The platform of the system this is built for, under one name for the programs that install it.
#ifdef Q_OS_MACOS
#include "Platform/MacOS/MacOSServices.h"
namespace Platform {
using SystemServices = MacOSServices;
}
#else
#include "Platform/Linux/LinuxServices.h"
namespace Platform {
using SystemServices = LinuxServices;
}
#endif
