#include "Application.h"

#include "Memory.h"
#include "Program.h"

#include <QProcess>
#include <QThread>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QString windowProgram = u"kelvane-bench-window"_s;
const QString kelvane = u"kelvane"_s;
const QString bare = u"bare"_s;

/// What the process takes once that has not changed for a second.
double memoryAtRest(qint64 process) {
    constexpr int pause = 100;
    constexpr int still = 10;
    constexpr int patience = 200;
    double last = 0;
    int same = 0;
    for (int look = 0; look < patience && same < still; ++look) {
        QThread::msleep(pause);
        const double now = Memory::ofProcess(QString::number(process));
        same = now > 0 && now == last ? same + 1 : 0;
        last = now;
    }
    return last;
}

double memoryOf(const QString& program) {
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(Program::path(program), QStringList());
    if (!process.waitForStarted()) {
        qFatal("%s could not be started", qPrintable(program));
    }
    const double bytes = memoryAtRest(process.processId());
    process.waitForFinished(0);
    if (process.state() != QProcess::Running) {
        qFatal("%s did not stay", qPrintable(program));
    }
    process.terminate();
    process.waitForFinished();
    return bytes;
}

template <typename Measured, typename Floor>
Stopwatch::Pair inTurns(int runs, const Measured& measured, const Floor& floor) {
    std::vector<double> measurements;
    std::vector<double> floors;
    for (int run = 0; run < runs; ++run) {
        measurements.push_back(measured());
        floors.push_back(floor());
    }
    return {.measured = Stopwatch::middle(measurements), .floor = Stopwatch::middle(floors)};
}

QList<double> numbers(const QString& work, const QString& subject) {
    return Program::lines(windowProgram, {work, subject}).value(0).numbers;
}

} // namespace

Stopwatch::Pair Application::memory(int runs) {
    return inTurns(
        runs, [] { return memoryOf(u"kelvane"_s); }, [] { return memoryOf(u"kelvane-bench-application"_s); });
}

Application::Opening Application::opening(int runs) {
    QList<double> filled;
    QList<double> filledFloor;
    const auto open = [](const QString& subject, QList<double>& filledTimes) {
        const QList<double> times = numbers(u"first-frame"_s, subject);
        filledTimes.append(times.value(1));
        return times.value(0);
    };
    Opening opening;
    opening.firstFrame = inTurns(
        runs, [&] { return open(kelvane, filled); }, [&] { return open(bare, filledFloor); });
    opening.filled = inTurns(
        runs, [&filled] { return filled.takeFirst(); }, [&filledFloor] { return filledFloor.takeFirst(); });
    return opening;
}

Stopwatch::Pair Application::memoryAfterReopening(int runs) {
    QList<Program::Line> lines;
    const auto after = [&lines](qsizetype place) { return lines.value(place).numbers.value(0); };
    return inTurns(
        runs,
        [&] {
            lines = Program::lines(windowProgram, {u"reopening"_s, kelvane});
            return after(1);
        },
        [&] { return after(0); });
}
