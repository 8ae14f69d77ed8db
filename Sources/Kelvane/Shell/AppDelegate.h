#pragma once

#include "Kelvane/ApplicationWindow.h"
#include "Kelvane/Shell/MainMenu.h"
#include "Kelvane/Shell/StatusMenu.h"

#include <QObject>
#include <QSystemTrayIcon>

#include <memory>

namespace Kelvane {

/// The life of the application: its status item, its menus, its window, its start and its end. All commands go to the
/// model. Main thread only.
class AppDelegate : public QObject {
    Q_OBJECT

public:
    AppDelegate(AppModel& model, Desktop& desktop, Images& images, WindowMaker windowMaker);
    ~AppDelegate() override;

    /// What is done once after launch. The window opens on the first run, and when `window` asks for it.
    enum class Window { onFirstRun, show };
    void finishLaunching(Window window);
    /// Opens the main window and brings it to the front; makes it first if there is none. Says so where it cannot be
    /// made.
    void showWindow();

private:
    void makeStatusItem();
    void makeMainMenu();
    void makeWindow();
    void explainMissingWindow();
    void reopen(Qt::ApplicationState state);
    void showAbout();

    AppModel& m_model;
    Desktop& m_desktop;
    Images& m_images;
    StatusMenu m_statusMenu;
    QSystemTrayIcon m_statusItem;
    std::unique_ptr<MainMenu> m_mainMenu;
    WindowMaker m_windowMaker;
    std::unique_ptr<ApplicationWindow> m_window;
    bool m_hasBeenInBackground = false;
};

} // namespace Kelvane
