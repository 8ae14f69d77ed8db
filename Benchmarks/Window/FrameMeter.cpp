#include "Window/FrameMeter.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QQuickWindow>
#include <QTimer>

#include <ctime>

using namespace std::chrono_literals;

namespace {

constexpr auto stillness = 120ms;
constexpr auto patience = 30s;

double busySeconds() {
    timespec time = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) / 1e9;
}

} // namespace

FrameMeter::FrameMeter(QQuickWindow& window)
    : m_window(window) {}

QList<double> FrameMeter::frames(const std::function<void()>& action, const std::function<void()>& next) {
    QEventLoop loop;
    QTimer rest;
    rest.setSingleShot(true);
    rest.setInterval(stillness);
    QObject::connect(&rest, &QTimer::timeout, &loop, &QEventLoop::quit);
    const QDeadlineTimer deadline(patience);

    QList<double> frames;
    double last = busySeconds();
    const auto lap = [&frames, &last] {
        const double now = busySeconds();
        frames.append(now - last);
        last = now;
    };
    QObject::connect(&m_window, &QQuickWindow::frameSwapped, &loop, [&] {
        lap();
        if (deadline.hasExpired()) {
            qFatal("the window does not come to rest");
        }
        rest.start();
        if (next) {
            QMetaObject::invokeMethod(&loop, next, Qt::QueuedConnection);
        }
    });
    action();
    rest.start();
    loop.exec();
    lap();
    return frames;
}
