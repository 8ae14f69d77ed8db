#pragma once

#include "Kelvane/ApplicationWindow.h"

namespace Kelvane {

/// The window with all that draws it, which a process that never shows it need not carry: a library that is loaded when
/// the window is first asked for, or what is built in where there is no such library.
namespace WindowModule {

/// What the application is to make its window with.
std::unique_ptr<ApplicationWindow> makeWindow(AppModel& model, Desktop& desktop, Images& images);

/// From the library at `path`; null, with a line on standard error, when it is not there or is not of this very
/// version.
std::unique_ptr<ApplicationWindow> load(const QString& path, AppModel& model, Desktop& desktop, Images& images);

} // namespace WindowModule

} // namespace Kelvane
