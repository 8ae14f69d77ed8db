#pragma once

#include <QList>

#include <functional>

class QQuickWindow;

/// Measures how long this thread, which makes and draws the window's content, is kept busy for each frame. It counts
/// processor time, which other programs do not lengthen.
class FrameMeter {
public:
    explicit FrameMeter(QQuickWindow& window);

    /// Does something to the window and waits until it has come to rest; `next` follows each frame. The seconds for
    /// each frame, and last those for what was still to do after it.
    QList<double> frames(const std::function<void()>& action, const std::function<void()>& next = {});

private:
    QQuickWindow& m_window;
};
