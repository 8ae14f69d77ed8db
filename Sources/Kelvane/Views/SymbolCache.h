#pragma once

#include "Kelvane/Symbols/SymbolImage.h"

#include <QCache>
#include <QColor>
#include <QImage>
#include <QObject>

namespace Kelvane {

class Images;

/// What the image of a symbol looks like; lengths are in pixels.
struct SymbolLook {
    QString name;
    SymbolImage::Weight weight = SymbolImage::Weight::regular;
    /// The symbol's own width and height.
    int side = 0;
    /// The symbol keeps the colours of its file without one.
    QColor tint = QColor();

    /// The diameter of the disc behind the symbol, with its rim; 0 without a disc.
    int disc = 0;
    qreal rim = 0;
    QColor fill = QColor();
    QColor rimColour = QColor();

    bool operator==(const SymbolLook&) const = default;
};

/// Draws symbols and keeps the images that were asked for last. The system's own symbols come first, ours serve where
/// it has none; symbols on discs are always ours, drawn for that size. A window's engine is its parent, so that the
/// items of that window find it. Main thread only.
class SymbolCache : public QObject {
    Q_OBJECT

public:
    /// The images outlive the cache.
    SymbolCache(Images& images, QObject* parent);

    /// Square and premultiplied; a null image for a name that neither the system nor this project knows.
    QImage image(const SymbolLook& look);

    /// Upper bound for the images that are kept, in bytes: twice what the largest pane shows at two pixels a point.
    static constexpr qsizetype capacity = 1 << 20;

private:
    QImage draw(const SymbolLook& look) const;
    QImage symbol(const SymbolLook& look) const;

    Images& m_images;
    QCache<SymbolLook, QImage> m_drawn;
};

} // namespace Kelvane
