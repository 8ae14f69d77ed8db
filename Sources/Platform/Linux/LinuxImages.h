#pragma once

#include "Kelvane/Ports/Images.h"

namespace Platform {

/// The pictures in bundles on a Linux desktop, which has no others of its own.
class LinuxImages final : public Kelvane::Images {
public:
    std::optional<QImage> applicationIcon(const QString& path, int size) override;
    /// Ours always serve.
    std::optional<QIcon> symbol(const QString& name, const QString& description) override;
    /// There is none: the title bar is the window manager's.
    std::optional<QImage> windowPicture(QWindow& window, const QImage& content, const QColor& background) override;
};

} // namespace Platform
