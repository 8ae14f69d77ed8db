#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <memory>

namespace Kelvane {

class AppModel;
class Desktop;
class Images;

/// The main window as the application's life knows it: it comes, goes and is drawn. What is in it, and all that draws
/// it, need not be in memory before. Main thread only.
class ApplicationWindow : public QObject {
    Q_OBJECT

public:
    /// Brings the window to the front, wherever it was; the first time it makes it.
    virtual void show() = 0;
    virtual void close() = 0;
    virtual void minimize() = 0;
    virtual bool isVisible() const = 0;
    /// Opens the window and draws every screen, light and dark, into files of the folder; `screensDrawn` follows after
    /// the last.
    virtual void drawScreens(const QString& folder) = 0;

Q_SIGNALS:
    /// The window has become the one that takes the keys.
    void becameKey();
    /// The window is about to be hidden.
    void closing();
    void screensDrawn();
};

/// Makes the window, with what it is given outliving it; null when what it is made of cannot be found.
using WindowMaker = std::function<std::unique_ptr<ApplicationWindow>(AppModel&, Desktop&, Images&)>;

} // namespace Kelvane
