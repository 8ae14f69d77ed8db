#pragma once

#include <QtGlobal>

/// The application's side of the system this is built for, under one name for the program that installs it.
#ifdef Q_OS_MACOS
#include "Platform/MacOS/MacOSDesktop.h"
using SystemDesktop = MacOSDesktop;
#else
#include "Platform/Linux/LinuxDesktop.h"
using SystemDesktop = LinuxDesktop;
#endif
