#pragma once

#include "../../SDK/usr/include/Availability.h"
