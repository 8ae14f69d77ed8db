#pragma once

#include <QtGlobal>

/// The platform of the system this is built for, under one name for the programs that install it.
#ifdef Q_OS_MACOS
#include "Platform/MacOS/MacOSServices.h"
using SystemServices = MacOSServices;
#else
#include "Platform/Linux/LinuxServices.h"
using SystemServices = LinuxServices;
#endif
