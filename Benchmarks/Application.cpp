#include "Application.h"

#include "Memory.h"
#include "Program.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
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

/// Copies of the libraries that are loaded here, but for the C library that every process has: what a process shares
/// counts for it in part only, and what it shares with this one it has alone where nobody measures.
class OwnLibraries {
public:
    OwnLibraries() {
        QFile maps(u"/proc/self/maps"_s);
        if (!maps.open(QIODevice::ReadOnly)) {
            qFatal("what is loaded here cannot be read");
        }
        for (const QByteArray& line : maps.readAll().split('\n')) {
            const QString path = QFile::decodeName(line.mid(line.indexOf('/')));
            const QString name = QFileInfo(path).fileName();
            // A library is mapped in several pieces; copying it again does nothing.
            if (name.contains(u".so.") && !name.startsWith(u"libc.") && !name.startsWith(u"ld-")) {
                QFile::copy(path, m_folder.filePath(sonameOf(name)));
            }
        }
    }

    QProcessEnvironment environment() const {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"LD_LIBRARY_PATH"_s, m_folder.path());
        return environment;
    }

private:
    /// What programs ask for: the name with the first number of the version only.
    static QString sonameOf(const QString& name) {
        const qsizetype version = name.indexOf(u".so.") + 4;
        return name.left(name.indexOf(u'.', version));
    }

    QTemporaryDir m_folder;
};

double memoryOf(const QString& program, const OwnLibraries& libraries) {
    QProcess process;
    process.setProcessEnvironment(libraries.environment());
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
    const OwnLibraries libraries;
    return inTurns(
        runs, [&libraries] { return memoryOf(u"kelvane"_s, libraries); },
        [&libraries] { return memoryOf(u"kelvane-bench-application"_s, libraries); });
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
