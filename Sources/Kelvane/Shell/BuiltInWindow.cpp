#include "Kelvane/Shell/WindowModule.h"
#include "Kelvane/Views/MainWindow.h"

namespace Kelvane {

std::unique_ptr<ApplicationWindow> WindowModule::makeWindow(AppModel& model, Desktop& desktop, Images& images) {
    return std::make_unique<MainWindow>(model, desktop, images);
}

} // namespace Kelvane
