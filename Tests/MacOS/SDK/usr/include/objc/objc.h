#pragma once

// One declaration a line, each with its source; that is why these lines are long.

// `bool` on one architecture and `signed char` on the other: both are checked.
#if defined(__OBJC_BOOL_IS_BOOL) && __OBJC_BOOL_IS_BOOL
typedef bool BOOL;
#else
typedef signed char BOOL;
#endif
#define YES __objc_yes
#define NO __objc_no
#define nil nullptr
#define Nil nullptr
