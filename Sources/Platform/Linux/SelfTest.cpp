#include "Platform/SelfTest.h"

#include "DockCore/Storage/PropertyList.h"
#include "Platform/Linux/LinuxClock.h"
#include "Platform/Linux/LinuxFolders.h"
#include "Platform/Linux/LinuxPreferences.h"
#include "Platform/Linux/LinuxServices.h"
#include "Platform/Linux/X11Workspace.h"
#include "Platform/QtProcesses.h"
#include "Platform/SelfTestReport.h"

#include <QDBusConnection>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QTextStream>

using namespace Qt::StringLiterals;
using DockCore::PropertyList;

namespace Platform {

namespace {

using Verdict = SelfTestReport::Verdict;

void tellSystem(SelfTestReport& report) {
    report.add(Verdict::told, u"Kelvane"_s, QStringLiteral(KELVANE_VERSION));
    report.add(Verdict::told, u"System"_s, QSysInfo::prettyProductName());
    report.add(Verdict::told, u"Processor"_s, QSysInfo::currentCpuArchitecture());
    report.add(Verdict::told, u"Qt"_s, QString::fromLatin1(qVersion()));
}

void tellDock(SelfTestReport& report) {
    LinuxPreferences dock;
    dock.synchronize();
    const std::optional<PropertyList> tiles = dock.copyValue(u"persistent-apps"_s);
    const QString items = tiles && tiles->array() != nullptr ? u", %1 tiles"_s.arg(tiles->array()->size()) : QString();
    report.add(Verdict::told, u"The Dock's property list"_s, LinuxPreferences::defaultPath() + items);
}

void checkMachine(SelfTestReport& report) {
    LinuxFolders folders;
    report.check(!folders.home().isEmpty(), u"The home folder"_s, folders.home());
    report.check(!folders.applicationSupport().isEmpty(), u"The folder for application data"_s,
                 folders.applicationSupport());
    report.check(QtProcesses().run(u"/bin/sh"_s, {u"-c"_s, u"exit 7"_s}) == 7,
                 u"A program runs and its status comes back"_s);
    LinuxClock clock;
    const std::chrono::nanoseconds before = clock.elapsed();
    report.check(clock.elapsed() >= before, u"Passed time does not go back"_s);
}

void tellSession(SelfTestReport& report) {
    LinuxServices system;
    X11Workspace workspace(system.services().bundles);
    const std::optional<Kelvane::RunningApplication> front = workspace.frontApplication();
    report.add(Verdict::told, u"In front"_s,
               front ? front->bundleID.value_or(front->name.value_or(u"without a name"_s)) : u"nothing"_s);
    const auto idle = workspace.sinceLastInput();
    const bool isSomebodyThere = idle && *idle < std::chrono::duration<double>::max();
    report.add(Verdict::told, u"Since the last input"_s,
               isSomebodyThere ? u"%1 s"_s.arg(idle->count(), 0, 'f', 1) : u"unknown"_s);
    report.add(Verdict::told, u"Session bus"_s,
               QDBusConnection::sessionBus().isConnected() ? u"connected"_s : u"none"_s);
}

} // namespace

int runSelfTest() {
    SelfTestReport report;
    tellSystem(report);
    tellDock(report);
    const QTemporaryDir folder;
    LinuxPreferences own(folder.filePath(u"own.plist"_s));
    checkPreferences(report, own);
    checkMachine(report);
    tellSession(report);
    QTextStream(stdout) << report.text();
    return report.hasFailed() ? 1 : 0;
}

} // namespace Platform
