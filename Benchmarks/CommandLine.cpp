#include "CommandLine.h"

#include "Fixture.h"
#include "Platform/QtProcesses.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

QString CommandLine::program() {
    return QCoreApplication::applicationDirPath() + u"/kelvanectl"_s;
}

Stopwatch::Pair CommandLine::applying(const Fixture& fixture, int runs) {
    Platform::QtProcesses processes;
    const auto run = [&processes](const QStringList& arguments) {
        if (processes.run(program(), arguments) != 0) {
            qFatal("kelvanectl %s failed", qPrintable(arguments.join(u' ')));
        }
    };
    // Two profiles in turns, so that there is something to change every time and nothing that looks changed by hand.
    bool isTurned = false;
    return Stopwatch::medians(
        Stopwatch::Time::passed, runs,
        [&] {
            isTurned = !isTurned;
            run({u"apply"_s, isTurned ? fixture.turnedProfile().name : fixture.profile().name});
        },
        [&] { run({u"--version"_s}); });
}
