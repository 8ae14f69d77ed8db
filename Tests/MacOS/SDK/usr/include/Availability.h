#pragma once

// One declaration a line, each with its source; that is why these lines are long.

// The attribute that the compiler checks `@available` against.
#if defined(__clang__) && defined(__APPLE__)
#define API_AVAILABLE(platform_and_version) __attribute__((availability(KELVANE_SDK_##platform_and_version)))
#define KELVANE_SDK_macos(version) macos, introduced = version
#else
#define API_AVAILABLE(platform_and_version)
#endif

#define __MAC_10_15 101500
#define __MAC_11_0 110000
#define __MAC_13_0 130000
#define __MAC_OS_X_VERSION_MAX_ALLOWED 140000
#ifdef __ENVIRONMENT_MAC_OS_X_VERSION_MIN_REQUIRED__
#define __MAC_OS_X_VERSION_MIN_REQUIRED __ENVIRONMENT_MAC_OS_X_VERSION_MIN_REQUIRED__
#endif
