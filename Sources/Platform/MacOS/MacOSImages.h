#pragma once

#include "Kelvane/Ports/Images.h"

namespace Platform {

/// The system's pictures through AppKit. Main thread only, but for `applicationIcon`.
class MacOSImages final : public Kelvane::Images {
public:
    std::optional<QImage> applicationIcon(const QString& path, int size) override;
    /// As large as a symbol in the menu bar, for plain and for dense screens.
    std::optional<QIcon> symbol(const QString& name, const QString& description) override;
    std::optional<QImage> windowPicture(QWindow& window, const QImage& content, const QColor& background) override;
};

} // namespace Platform
