#include "Kelvane/Views/MainWindow.h"

// The two functions by which the application finds the window in a library of its own.

extern "C" {

Q_DECL_EXPORT const char* kelvaneWindowVersion() {
    return KELVANE_VERSION;
}

/// Whoever calls owns what is made.
Q_DECL_EXPORT Kelvane::ApplicationWindow* kelvaneMakeWindow(Kelvane::AppModel& model, Kelvane::Desktop& desktop,
                                                            Kelvane::Images& images) {
    return new Kelvane::MainWindow(model, desktop, images);
}
}
