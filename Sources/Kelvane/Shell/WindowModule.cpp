#include "Kelvane/Shell/WindowModule.h"

#include <QCoreApplication>
#include <QLibrary>

using namespace Qt::StringLiterals;

namespace Kelvane {

namespace {
using Version = const char* (*)();
using Make = ApplicationWindow* (*)(AppModel&, Desktop&, Images&);
} // namespace

std::unique_ptr<ApplicationWindow> WindowModule::makeWindow(AppModel& model, Desktop& desktop, Images& images) {
    return load(QCoreApplication::applicationDirPath() + u"/../lib/kelvane/window.so"_s, model, desktop, images);
}

std::unique_ptr<ApplicationWindow> WindowModule::load(const QString& path, AppModel& model, Desktop& desktop,
                                                      Images& images) {
    // It stays loaded to the end.
    QLibrary library(path);
    const auto version = reinterpret_cast<Version>(library.resolve("kelvaneWindowVersion"));
    const auto make = reinterpret_cast<Make>(library.resolve("kelvaneMakeWindow"));
    if (!library.isLoaded()) {
        qWarning("%s", qUtf8Printable(library.errorString()));
        return nullptr;
    }
    if (version == nullptr || make == nullptr) {
        qWarning("%s holds no window of Kelvane's", qUtf8Printable(path));
        return nullptr;
    }
    // An update that came while the application ran has replaced the library, not what runs.
    if (qstrcmp(version(), KELVANE_VERSION) != 0) {
        qWarning("%s is of version %s", qUtf8Printable(path), version());
        return nullptr;
    }
    return std::unique_ptr<ApplicationWindow>(make(model, desktop, images));
}

} // namespace Kelvane
