#pragma once

#include "Kelvane/Shell/MainMenu.h"
#include "Kelvane/Shell/StatusMenu.h"

#include <QObject>
#include <QSystemTrayIcon>

#include <memory>

namespace Kelvane {

class AppModel;
class Desktop;
class Images;
class MainWindow;
class ScreenImages;

/// The life of the application: its status item, its menus, its window, its start and its end. All commands go to the
/// model. Main thread only.
class AppDelegate : public QObject {
    Q_OBJECT

public:
    AppDelegate(AppModel& model, Desktop& desktop, Images& images);
    ~AppDelegate() override;

    /// What is done once after launch. The window opens on the first run, and when `window` asks for it.
    enum class Window { onFirstRun, show };
    void finishLaunching(Window window);
    /// Opens the main window and brings it to the front; makes it first if there is none.
    void showWindow();

private:
    void makeStatusItem();
    void makeMainMenu();
    void makeWindow();
    void reopen(Qt::ApplicationState state);
    void showAbout();

    AppModel& m_model;
    Desktop& m_desktop;
    Images& m_images;
    StatusMenu m_statusMenu;
    QSystemTrayIcon m_statusItem;
    std::unique_ptr<MainMenu> m_mainMenu;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<ScreenImages> m_screenImages;
    bool m_hasBeenInBackground = false;
};

} // namespace Kelvane
