#pragma once

#include <QColor>
#include <QIcon>
#include <QImage>
#include <QString>

#include <optional>

class QWindow;

namespace Kelvane {

/// The pictures that this desktop has of its own. Main thread only, but for `applicationIcon`.
class Images {
public:
    virtual ~Images() = default;

    /// The icon of the bundle at `path`, `size` pixels wide; nothing when it has none. Any thread may ask.
    virtual std::optional<QImage> applicationIcon(const QString& path, int size) = 0;
    /// The system's own image for a symbol name as a mask; nothing where it has none and ours serves.
    virtual std::optional<QIcon> symbol(const QString& name, const QString& description) = 0;
    /// The whole window with its title bar around `content`, which is what it shows, on `background` and in its
    /// screen's resolution; nothing where the title bar is not the system's to draw and the content serves.
    virtual std::optional<QImage> windowPicture(QWindow& window, const QImage& content, const QColor& background) = 0;
};

} // namespace Kelvane
