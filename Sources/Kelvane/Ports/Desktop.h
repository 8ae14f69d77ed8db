#pragma once

#include <QString>

class QWindow;

namespace Kelvane {

/// What the application asks of the desktop it shows itself on. Main thread only.
class Desktop {
public:
    enum class ActivationPolicy { accessory, regular };
    enum class Appearance { system, light, dark };

    virtual ~Desktop() = default;

    /// `regular` shows the application among the running ones, `accessory` only in the menu bar.
    virtual void setActivationPolicy(ActivationPolicy policy) = 0;
    /// Forces an appearance on the whole application, or follows the system's again.
    virtual void setAppearance(Appearance appearance) = 0;
    /// Gives a native window the look of a main window here, and its remembered frame.
    virtual void prepareMainWindow(QWindow& window) = 0;
    /// Shows the system's own panel about the application; false where it has none and ours serves.
    virtual bool showAboutPanel() = 0;
    /// Shows the file in the desktop's file manager, selected where it can be.
    virtual void reveal(const QString& path) = 0;
};

} // namespace Kelvane
