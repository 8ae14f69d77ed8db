#pragma once

#include "Stopwatch.h"

#include <QString>

class Fixture;

/// The command as a whole process, from its start to its end.
namespace CommandLine {

/// The program beside this one.
QString program();
/// `kelvanectl apply`, each time with the Dock's first applications in another order; floor: `kelvanectl --version`.
/// --version`.
Stopwatch::Pair applying(const Fixture& fixture, int runs);

} // namespace CommandLine
