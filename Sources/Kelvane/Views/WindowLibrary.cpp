#include "Kelvane/Views/MainWindow.h"

#include <QQuickWindow>

// The two functions by which the application finds the window in a library of its own.

namespace {

/// The renderer that starts fastest and takes least memory where this library is used, unless the user's environment
/// names another. That environment stays as it is: the programs that are started from here have it, too.
void chooseRenderer() {
    if (!qEnvironmentVariableIsSet("QSG_RHI_BACKEND") && !qEnvironmentVariableIsSet("QT_QUICK_BACKEND"))
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

} // namespace

extern "C" {

Q_DECL_EXPORT const char* kelvaneWindowVersion() {
    return KELVANE_VERSION;
}

/// Whoever calls owns what is made.
Q_DECL_EXPORT Kelvane::ApplicationWindow* kelvaneMakeWindow(Kelvane::AppModel& model, Kelvane::Desktop& desktop,
                                                            Kelvane::Images& images) {
    chooseRenderer();
    return new Kelvane::MainWindow(model, desktop, images);
}
}
