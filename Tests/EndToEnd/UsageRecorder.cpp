// The tracker as a process of its own, without the rest of the application: records until it is asked to end, then says
// how often its event loop woke.

#include "DockCore/Storage/Paths.h"
#include "DockCore/UsageStore.h"
#include "Kelvane/UsageTracker.h"
#include "Platform/Linux/LinuxServices.h"
#include "Platform/Linux/X11Workspace.h"
#include "Platform/Posix/TerminationSignals.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>

#include <cstdio>

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    Platform::LinuxServices system;
    const Platform::TerminationSignals signals;
    Platform::X11Workspace workspace(system.services().bundles);
    DockCore::UsageStore usage(DockCore::Paths(system.services().folders).usage());
    Kelvane::UsageTracker tracker(usage, system.services().clock, &workspace);
    QObject::connect(&signals, &Platform::TerminationSignals::received, &tracker, [&tracker] {
        tracker.flush();
        QCoreApplication::quit();
    });
    tracker.start();
    int awakenings = 0;
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, &tracker,
                     [&awakenings] { ++awakenings; });
    std::puts("ready");
    std::fflush(stdout);
    const int status = QCoreApplication::exec();
    std::printf("%d\n", awakenings);
    return status;
}
