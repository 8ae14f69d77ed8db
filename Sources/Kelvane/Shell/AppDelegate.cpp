#include "Kelvane/Shell/AppDelegate.h"

#include "Kelvane/AppModel.h"
#include "Kelvane/Ports/Desktop.h"
#include "Kelvane/Shell/MenuSymbol.h"
#include "Kelvane/UsageTracker.h"

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include <utility>

using namespace Qt::StringLiterals;

namespace Kelvane {

namespace {
using namespace std::chrono_literals;
/// The activation that comes with a launch comes by then.
constexpr auto launchTime = 3s;
} // namespace

AppDelegate::AppDelegate(AppModel& model, Desktop& desktop, Images& images, WindowMaker windowMaker)
    : m_model(model)
    , m_desktop(desktop)
    , m_images(images)
    , m_statusMenu(model, [&images](const QString& name) { return MenuSymbol::icon(images, name); })
    , m_windowMaker(std::move(windowMaker)) {
    connect(&m_statusMenu, &StatusMenu::openRequested, this, &AppDelegate::showWindow);
    connect(&m_statusMenu, &StatusMenu::quitRequested, qApp, &QCoreApplication::quit);
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { m_model.tracker().flush(); });
    connect(qApp, &QGuiApplication::applicationStateChanged, this, &AppDelegate::reopen);
}

AppDelegate::~AppDelegate() = default;

void AppDelegate::finishLaunching(Window window) {
    m_desktop.setActivationPolicy(Desktop::ActivationPolicy::accessory);
    m_model.start();
    makeStatusItem();
    QTimer::singleShot(launchTime, this, [this] {
        if (QGuiApplication::applicationState() != Qt::ApplicationActive)
            m_hasBeenInBackground = true;
    });
    const QString folder = qEnvironmentVariable("KELVANE_SHOTS");
    if (!m_model.settings().onboarded || window == Window::show || !folder.isEmpty())
        showWindow();
    if (folder.isEmpty())
        return;
    // Without a window there is nothing to draw, and the end comes all the same.
    if (!m_window) {
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        return;
    }
    connect(m_window.get(), &ApplicationWindow::screensDrawn, qApp, &QCoreApplication::quit);
    m_window->drawScreens(folder);
}

void AppDelegate::makeStatusItem() {
    // Without a display no panel will ever take it, and Qt complains when it is offered.
    if (QGuiApplication::platformName() == u"offscreen")
        return;
    m_statusItem.setIcon(MenuSymbol::icon(m_images, u"dock.rectangle"_s, u"Kelvane"_s));
    m_statusItem.setToolTip(u"Kelvane"_s);
    m_statusItem.setContextMenu(&m_statusMenu.menu());
    m_statusItem.show();
}

void AppDelegate::makeMainMenu() {
    // There the system makes the application menu, and Qt takes what bears a role into it.
    const bool isCocoa = QGuiApplication::platformName() == u"cocoa";
    m_mainMenu =
        std::make_unique<MainMenu>(isCocoa ? MainMenu::ApplicationMenu::systems : MainMenu::ApplicationMenu::ours);
    connect(m_mainMenu.get(), &MainMenu::quitRequested, qApp, &QCoreApplication::quit);
    connect(m_mainMenu.get(), &MainMenu::aboutRequested, this, &AppDelegate::showAbout);
    // Where the system does not hide applications, one without a window is as hidden as can be.
    connect(m_mainMenu.get(), &MainMenu::hideRequested, this, [this] { m_window->close(); });
    connect(m_mainMenu.get(), &MainMenu::closeRequested, this, [this] { m_window->close(); });
    connect(m_mainMenu.get(), &MainMenu::minimizeRequested, this, [this] { m_window->minimize(); });
}

void AppDelegate::makeWindow() {
    m_window = m_windowMaker(m_model, m_desktop, m_images);
    if (!m_window)
        return;
    makeMainMenu();
    connect(m_window.get(), &ApplicationWindow::becameKey, this, [this] { m_model.refresh(); });
    connect(m_window.get(), &ApplicationWindow::closing, this,
            [this] { m_desktop.setActivationPolicy(Desktop::ActivationPolicy::accessory); });
}

void AppDelegate::showWindow() {
    if (!m_window)
        makeWindow();
    if (!m_window) {
        explainMissingWindow();
        return;
    }
    m_desktop.setActivationPolicy(Desktop::ActivationPolicy::regular);
    m_model.refresh();
    m_window->show();
}

void AppDelegate::explainMissingWindow() {
    // Nobody who asked for the window waits for an answer to this.
    auto* box = new QMessageBox(QMessageBox::Warning, u"Kelvane"_s, u"The window cannot be opened."_s);
    box->setInformativeText(u"Kelvane was updated or moved while it ran. Quit it and open it again."_s);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->show();
}

void AppDelegate::reopen(Qt::ApplicationState state) {
    if (state == Qt::ApplicationInactive)
        m_hasBeenInBackground = true;
    // The activation that comes with the launch itself opens nothing.
    if (state == Qt::ApplicationActive && m_hasBeenInBackground && (!m_window || !m_window->isVisible()))
        showWindow();
}

void AppDelegate::showAbout() {
    if (m_desktop.showAboutPanel())
        return;
    QMessageBox::about(nullptr, u"About Kelvane"_s,
                       u"<b>Kelvane %1</b><p>Keeps the Dock in step with how you work.</p>"_s.arg(
                           QCoreApplication::applicationVersion()));
}

} // namespace Kelvane
