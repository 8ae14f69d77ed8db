#pragma once

#include "Kelvane/Ports/Images.h"

#include <QHash>
#include <QPainter>

namespace Fakes {

/// A desktop's pictures: those it was given, and at first none. Change them while no thread asks.
class Images : public Kelvane::Images {
public:
    std::optional<QImage> applicationIcon(const QString& path, int size) override {
        const auto icon = icons.constFind(path);
        return icon == icons.cend() ? std::nullopt : std::optional(icon->scaled(size, size));
    }
    std::optional<QIcon> symbol(const QString& name, const QString&) override {
        const auto found = symbols.constFind(name);
        return found == symbols.cend() ? std::nullopt : std::optional(*found);
    }

    std::optional<QImage> windowPicture(QWindow&, const QImage& content, const QColor& background) override {
        if (titleBar == 0)
            return std::nullopt;
        QImage picture(content.width(), titleBar + content.height(), QImage::Format_RGB32);
        picture.fill(background);
        QPainter(&picture).drawImage(0, titleBar, content);
        return picture;
    }

    /// By the path of the bundle.
    QHash<QString, QImage> icons;
    QHash<QString, QIcon> symbols;
    /// How many pixels of a window's background its title bar takes, above the content; 0 draws none.
    int titleBar = 0;
};

} // namespace Fakes
