#pragma once

#include <QIcon>
#include <QImage>
#include <QString>

#include <optional>

class QWindow;

namespace Kelvane {

/// What the application asks of the desktop it shows itself on. Main thread only, but for `applicationIcon`.
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
    /// The icon of the bundle at `path`, `size` pixels wide; nothing when it has none. Any thread may ask.
    virtual std::optional<QImage> applicationIcon(const QString& path, int size) = 0;
    /// The system's own image for a symbol name as a mask; nothing where it has none and ours serves.
    virtual std::optional<QIcon> symbol(const QString& name, const QString& description) = 0;
    /// Shows the file in the desktop's file manager, selected where it can be.
    virtual void reveal(const QString& path) = 0;
};

} // namespace Kelvane
