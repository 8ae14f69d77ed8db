#pragma once

#include <QtGlobal>

namespace Platform::Terminal {

/// Whether standard output goes to a terminal that shows colours. Any thread may ask.
bool showsColours();
/// The user this process acts for.
uint userID();

} // namespace Platform::Terminal
