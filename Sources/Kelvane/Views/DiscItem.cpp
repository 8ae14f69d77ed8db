#include "Kelvane/Views/DiscItem.h"

#include <cmath>

namespace Kelvane {

namespace {
/// Of the disc's diameter: 11 of 18 points.
constexpr qreal symbolShare = 11.0 / 18;
} // namespace

SymbolLook DiscItem::look(qreal pixelRatio) const {
    return {.name = name(),
            .weight = SymbolImage::Weight::mark,
            .side = static_cast<int>(std::lround(std::round(size() * symbolShare) * pixelRatio)),
            .tint = tint(),
            .disc = static_cast<int>(std::lround(extent() * pixelRatio)),
            .rim = rimWidth() * pixelRatio,
            .fill = m_fill,
            .rimColour = m_rim};
}

} // namespace Kelvane
