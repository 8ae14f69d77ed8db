#pragma once

// One declaration a line, each with its source; that is why these lines are long.

#include <Availability.h>
