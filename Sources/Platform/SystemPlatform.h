#pragma once

#include <QtGlobal>

/// The platform of the system this is built for, under one name for the programs that install it.
#ifdef Q_OS_MACOS
#include "Platform/MacOS/MacOSPlatform.h"
using SystemPlatform = MacOSPlatform;
#else
#include "Platform/Linux/LinuxPlatform.h"
using SystemPlatform = LinuxPlatform;
#endif
