// The resident application: one process a support folder, with a status item, a window when asked for, and the commands
// of the command line.

#include "DockCore/Storage/Paths.h"
#include "Kelvane/AppModel.h"
#include "Kelvane/Commands/CommandClient.h"
#include "Kelvane/Commands/CommandRunner.h"
#include "Kelvane/Commands/CommandServer.h"
#include "Kelvane/Commands/InstanceLock.h"
#include "Kelvane/Shell/AppDelegate.h"
#include "Kelvane/Shell/WindowModule.h"
#include "Kelvane/Uninstall.h"
#include "Kelvane/UsageTracker.h"
#include "Platform/Posix/Terminal.h"
#include "Platform/Posix/TerminationSignals.h"
#include "Platform/SelfTest.h"
#include "Platform/SystemServices.h"
#include "Platform/SystemSession.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QScopeGuard>
#include <QTextStream>
#include <QThread>

#include <cstdio>
#include <cstdlib>

using namespace Kelvane;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto answerTimeout = 5s;
/// A command that holds the lock may be changing the Dock.
constexpr auto lockTimeout = 60s;
constexpr auto lockRetryInterval = 20ms;

constexpr auto help = R"(Keeps the Dock in step with how you work.

Usage: kelvane [OPTION]

  --show       open the window; without it only the item in the menu bar shows, but for the first run
  --selftest   ask this computer for everything Kelvane needs of it, and print a table
  --uninstall  no longer open at login, and say what stays where
  --help       this text
  --version    the version

A second start asks the running application to show its window. `kelvanectl` is the command line.

Environment
  KELVANE_DRY_RUN  a property-list file that stands in for the Dock
  KELVANE_HOME     the folder for Kelvane's own files
  KELVANE_SHOTS    a folder to draw every screen into; the application ends afterwards
)";

enum class LockResult { acquired, shownByOther, timedOut };

/// Becomes the one application of the support folder, or asks the one that runs to show its window.
LockResult acquire(InstanceLock& lock, const QString& socket) {
    const QDeadlineTimer deadline(lockTimeout);
    while (lock.tryAcquire() == InstanceLock::State::busy) {
        const auto reply = CommandClient::ask(socket, {.kind = CommandRequest::Kind::showWindow},
                                              Platform::Terminal::userID(), answerTimeout);
        if (std::holds_alternative<Answer>(reply))
            return LockResult::shownByOther;
        if (deadline.hasExpired())
            return LockResult::timedOut;
        QThread::msleep(std::chrono::milliseconds(lockRetryInterval).count());
    }
    return LockResult::acquired;
}

} // namespace

int main(int argc, char** argv) {
    Platform::SystemSession::prepareEnvironment();
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"Kelvane"_s);
    QApplication::setApplicationVersion(QStringLiteral(KELVANE_VERSION));
    QApplication::setDesktopFileName(u"org.kelvane.Kelvane"_s);
    QApplication::setQuitOnLastWindowClosed(false);
    const QStringList arguments = QApplication::arguments();
    if (arguments.contains(u"--version")) {
        std::printf("Kelvane %s\n", KELVANE_VERSION);
        return 0;
    }
    if (arguments.contains(u"--help")) {
        std::fputs(help, stdout);
        return 0;
    }
    if (arguments.contains(u"--selftest"))
        return Platform::runSelfTest();

    Platform::SystemServices system;
    const DockCore::Paths paths(system.services().folders);
    if (arguments.contains(u"--uninstall")) {
        QTextStream output(stdout);
        return Uninstall::run(Platform::SystemSession(system.services()).loginItem(), paths, output);
    }
    const QString socket = commandSocketPath(paths.support());
    InstanceLock lock(paths.support());
    switch (acquire(lock, socket)) {
    case LockResult::acquired:
        break;
    case LockResult::shownByOther:
        return 0;
    case LockResult::timedOut:
        std::fputs("Kelvane seems to be running but does not answer.\n", stderr);
        return 1;
    }

    const Platform::TerminationSignals terminationSignals;
    QObject::connect(&terminationSignals, &Platform::TerminationSignals::received, &application,
                     &QCoreApplication::quit);
    Platform::SystemSession desktop(system.services());
    AppModel model(system.services(), paths, &desktop.workspace(), &desktop.loginItem());
    CommandRunner runner(model);
    AppDelegate delegate(model, desktop.desktop(), desktop.images(), WindowModule::makeWindow);
    const CommandServer server(runner, socket);
    QObject::connect(&server, &CommandServer::showRequested, &delegate, &AppDelegate::showWindow);
    delegate.finishLaunching(arguments.contains(u"--show") ? AppDelegate::Window::show
                                                           : AppDelegate::Window::onFirstRun);
    // Qt calls exit with status 1 inside the event loop when the connection to the display breaks; destructors of main
    // then do not run, those of static objects do. The end of the session is no failure.
    static QScopeGuard lostDisplay([&model] {
        model.tracker().flush();
        std::_Exit(EXIT_SUCCESS);
    });
    const int status = QApplication::exec();
    lostDisplay.dismiss();
    return status;
}
