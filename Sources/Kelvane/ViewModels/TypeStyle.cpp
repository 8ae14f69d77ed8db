#include "Kelvane/ViewModels/TypeStyle.h"

#include "Kelvane/ViewModels/Appearance.h"

#include <QtMath>

namespace Kelvane {

TypeStyle::TypeStyle(QObject* parent)
    : QObject(parent) {
    connect(&Appearance::shared(), &Appearance::fontChanged, this, &TypeStyle::changed);
}

QFont TypeStyle::font() const {
    QFont font(Appearance::shared().family());
    font.setPixelSize(std::max(1, qRound(m_size * Appearance::shared().textScale())));
    font.setWeight(static_cast<QFont::Weight>(m_weight));
    font.setLetterSpacing(QFont::AbsoluteSpacing, m_tracking);
    return font;
}

qreal TypeStyle::lineHeight() const {
    return qCeil(m_line * Appearance::shared().textScale());
}

} // namespace Kelvane
