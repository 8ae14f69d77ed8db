#pragma once

#include "Stopwatch.h"

/// The application as whole processes, in the home and on the display that the environment names. Each figure is
/// the median of `runs` processes, and so is its floor.
namespace Application {

/// The bytes of the application with its status item and without its window, when it has come to rest; floor: an
/// application that has a status item and a timer and nothing else.
Stopwatch::Pair memory(int runs);
/// The seconds from the wish for the window to its first frame, and to the first one that has the pane; floor: those of
/// a window with a bare list.
struct Opening {
    Stopwatch::Pair firstFrame;
    Stopwatch::Pair filled;
};
Opening opening(int runs);
/// The bytes written to when the window was closed for the twentieth time; floor: for the third.
Stopwatch::Pair memoryAfterReopening(int runs);

} // namespace Application
