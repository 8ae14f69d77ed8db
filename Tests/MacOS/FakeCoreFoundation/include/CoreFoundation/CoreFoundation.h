#pragma once

// The declarations that the adapters are checked with, where a compiler without frameworks looks for them.
#include "../../../SDK/System/Library/Frameworks/CoreFoundation.framework/Headers/CoreFoundation.h"
