#pragma once

#include <QObject>

class QWindow;

namespace Platform {

/// Keeps the look of a main window on a window, whose native window is made late and may be made again. It belongs to
/// the window and lives as long. Main thread only.
class MainWindowChrome final : public QObject {
    Q_OBJECT

public:
    /// Dresses the native window now when there is one, and each that follows.
    explicit MainWindowChrome(QWindow& window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void dress();

    QWindow& m_window;
};

} // namespace Platform
