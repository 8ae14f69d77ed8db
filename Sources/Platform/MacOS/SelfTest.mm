#include "Platform/SelfTest.h"

#include "DockCore/Storage/PropertyList.h"
#include "Platform/MacOS/MacOSBundles.h"
#include "Platform/MacOS/MacOSFolders.h"
#include "Platform/MacOS/MacOSImages.h"
#include "Platform/MacOS/MacOSLoginItem.h"
#include "Platform/MacOS/MacOSMetadata.h"
#include "Platform/MacOS/MacOSPreferences.h"
#include "Platform/MacOS/MacOSWorkspace.h"
#include "Platform/MacOS/Values.h"
#include "Platform/QtProcesses.h"
#include "Platform/SelfTestReport.h"

#include <QSysInfo>
#include <QTextStream>

#import <AppKit/AppKit.h>

using namespace Qt::StringLiterals;
using DockCore::PropertyList;

namespace Platform {

namespace {

using Verdict = SelfTestReport::Verdict;

void tellSystem(SelfTestReport& report) {
    report.add(Verdict::told, u"Kelvane"_s, QStringLiteral(KELVANE_VERSION));
    report.add(Verdict::told, u"macOS"_s,
               QString::fromNSString(NSProcessInfo.processInfo.operatingSystemVersionString));
    report.add(Verdict::told, u"Processor"_s, QSysInfo::currentCpuArchitecture());
    report.add(Verdict::told, u"Qt"_s, QString::fromLatin1(qVersion()));
}

void checkDock(SelfTestReport& report) {
    MacOSPreferences dock;
    report.check(dock.synchronize(), u"The Dock's preferences synchronize"_s);
    for (const QString& key : {u"persistent-apps"_s, u"persistent-others"_s, u"show-recents"_s}) {
        const std::optional<PropertyList> value = dock.copyValue(key);
        if (!value) {
            report.add(Verdict::told, u"The Dock's "_s + key, u"absent"_s);
            continue;
        }
        const Owner there = makePropertyList(*value);
        const std::optional<PropertyList> back = there ? propertyList(there.borrow()) : std::nullopt;
        report.check(back == value, u"The Dock's "_s + key,
                     value->array() == nullptr ? QString() : u"%1 items"_s.arg(value->array()->size()));
    }
    report.check(QtProcesses().run(u"/usr/bin/pgrep"_s, {u"-x"_s, u"Dock"_s}) == 0, u"The Dock runs"_s);
}

void checkApplications(SelfTestReport& report) {
    MacOSBundles bundles;
    const QString finder = u"com.apple.finder"_s;
    const std::optional<QString> path = bundles.path(finder);
    report.check(path.has_value(), u"The workspace knows the Finder"_s, path.value_or(QString()));
    if (path) {
        report.check(bundles.identifier(*path) == finder, u"Its bundle has its identifier"_s);
        report.check(!bundles.displayName(*path).isEmpty(), u"It has a display name"_s, bundles.displayName(*path));
        report.check(MacOSImages().applicationIcon(*path, 64).has_value(), u"It has an icon"_s);
    }

    MacOSFolders folders;
    report.check(!folders.home().isEmpty(), u"The home folder"_s, folders.home());
    report.check(!folders.applicationSupport().isEmpty(), u"The application support folder"_s,
                 folders.applicationSupport());
    const QStringList applications = folders.entries(u"/System/Applications"_s);
    report.check(!applications.isEmpty(), u"The system's applications are listed"_s,
                 u"%1 entries"_s.arg(applications.size()));
    qsizetype known = 0;
    qsizetype dated = 0;
    for (const QString& application : applications) {
        const std::optional<DockCore::Metadata::Item> item = MacOSMetadata().item(application);
        known += item.has_value() ? 1 : 0;
        dated += item && (item->usedDates || item->lastUsedDate) ? 1 : 0;
    }
    // Where indexing is off there is nothing to know, and that is no fault.
    report.add(Verdict::told, u"The metadata index"_s,
               u"knows %1 of them, %2 with dates of use"_s.arg(known).arg(dated));
}

void checkSession(SelfTestReport& report) {
    MacOSWorkspace workspace;
    const std::optional<Kelvane::RunningApplication> front = workspace.frontApplication();
    report.add(Verdict::told, u"In front"_s,
               front ? front->bundleID.value_or(front->name.value_or(u"without a name"_s)) : u"nothing"_s);
    const auto idle = workspace.sinceLastInput();
    report.add(Verdict::told, u"Since the last input"_s, idle ? u"%1 s"_s.arg(idle->count(), 0, 'f', 1) : u"unknown"_s);
    report.add(Verdict::told, u"Opens at login"_s, MacOSLoginItem().isEnabled() ? u"yes"_s : u"no"_s);
    for (const QString& symbol : {u"dock.rectangle"_s, u"pause.circle"_s, u"square.stack.3d.up"_s, u"gearshape"_s}) {
        NSImage* image = [NSImage imageWithSystemSymbolName:symbol.toNSString() accessibilityDescription:nil];
        report.check(image != nil, u"The system draws "_s + symbol);
    }
}

} // namespace

int runSelfTest() {
    SelfTestReport report;
    @autoreleasepool {
        tellSystem(report);
        checkDock(report);
        MacOSPreferences own(u"org.kelvane.Kelvane"_s);
        checkPreferences(report, own);
        checkApplications(report);
        checkSession(report);
    }
    QTextStream(stdout) << report.text();
    return report.hasFailed() ? 1 : 0;
}

} // namespace Platform
