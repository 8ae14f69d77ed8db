// One window in a process of its own: does to it what it is told and prints how long that took, in lines of a name and
// numbers.

#include "Memory.h"
#include "Window/FrameMeter.h"
#include "Window/Subject.h"

#include <QApplication>
#include <QEventLoop>
#include <QQuickWindow>

#include <chrono>
#include <cstdio>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using Clock = std::chrono::steady_clock;

/// From the wish for the window to its first frame, and to the first one with its content.
void firstFrame(Subject& subject) {
    const Clock::time_point start = Clock::now();
    subject.open();
    QEventLoop loop;
    std::vector<double> frames;
    QObject::connect(&subject.window(), &QQuickWindow::frameSwapped, &loop, [&] {
        frames.push_back(std::chrono::duration<double>(Clock::now() - start).count());
        if (subject.isFilled()) {
            loop.quit();
        }
    });
    loop.exec();
    std::printf("first-frame %.6f %.6f\n", frames.front(), frames.back());
}

void frames(Subject& subject) {
    subject.open();
    FrameMeter meter(subject.window());
    meter.frames([] {});
    for (const Subject::Step& step : subject.steps()) {
        std::printf("%s", qPrintable(step.kind));
        for (const double seconds : meter.frames(step.action, step.next)) {
            std::printf(" %.6f", seconds);
        }
        std::printf("\n");
    }
}

/// What the process has written to after the third and after the last time that the window was closed.
void reopening(Subject& subject) {
    constexpr int times = 20;
    subject.open();
    FrameMeter meter(subject.window());
    for (int time = 1; time <= times; ++time) {
        meter.frames([&subject] { subject.open(); });
        meter.frames([&subject] { subject.window().close(); });
        if (time == 3 || time == times) {
            std::printf("after-%d %.0f\n", time, Memory::writtenBy(u"self"_s));
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QString work = QApplication::arguments().value(1);
    const auto subject = QApplication::arguments().value(2) == u"kelvane"_s ? Subject::kelvane() : Subject::bare();
    if (work == u"first-frame"_s) {
        firstFrame(*subject);
    } else if (work == u"frames"_s) {
        frames(*subject);
    } else {
        reopening(*subject);
    }
    return 0;
}
