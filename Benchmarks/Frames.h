#pragma once

#include "Program.h"
#include "Stopwatch.h"

/// The processor time that the main thread needs for a frame while something is done to the window, in seconds; floor:
/// the same of a window with a bare list. One series of processes answers for all that is done.
class Frames {
public:
    explicit Frames(int runs);

    /// The longest frame among all steps of these kinds, each step by the median of the processes, so that one moment
    /// of a busy machine does not count.
    Stopwatch::Pair longest(const QStringList& kinds) const;
    /// The median frame of these kinds.
    Stopwatch::Pair middle(const QStringList& kinds) const;

private:
    /// A line for each step: its kind and its frames.
    using Run = QList<Program::Line>;

    QList<Run> m_measured;
    QList<Run> m_floor;
};
