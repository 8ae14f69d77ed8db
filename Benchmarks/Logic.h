#pragma once

#include "Stopwatch.h"

class Fixture;

/// The logic's work and, as the floor beside it, the least that it takes to have its data at all.
namespace Logic {

/// The first scan of a process; floor: opening and parsing the same files.
Stopwatch::Pair scanning(const Fixture& fixture, int runs);
/// A scan when nothing has changed since the last one; floor: asking for the state of the same files.
Stopwatch::Pair scanningAgain(const Fixture& fixture, int runs);
/// Ranking by a month of 91 stored days and planning; floor: adding the same numbers up and sorting the sums.
Stopwatch::Pair rankingAndPlanning(const Fixture& fixture, int runs);
/// Loading the usage file; floor: parsing the same JSON.
Stopwatch::Pair loading(const Fixture& fixture, int runs);
/// Loading the usage file and saving it with one change; floor: parsing and writing the same JSON.
Stopwatch::Pair loadingAndSaving(const Fixture& fixture, int runs);

} // namespace Logic
