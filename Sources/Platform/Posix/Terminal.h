#pragma once

#include <QtGlobal>

namespace Kelvane::Terminal {

/// Whether standard output goes to a terminal that shows colours. Any thread may ask.
bool showsColours();
/// The user this process acts for.
uint userID();

} // namespace Kelvane::Terminal
