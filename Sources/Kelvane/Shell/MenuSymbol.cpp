#include "Kelvane/Shell/MenuSymbol.h"

#include "Kelvane/Ports/Images.h"
#include "Kelvane/Symbols/SymbolImage.h"

#include <QGuiApplication>
#include <QPalette>
#include <QPixmap>

namespace Kelvane::MenuSymbol {

QIcon icon(Images& images, const QString& name, const QString& description) {
    if (const std::optional<QIcon> native = images.symbol(name, description))
        return *native;
    const QColor colour = QGuiApplication::palette().color(QPalette::WindowText);
    QIcon icon;
    // The sizes that panels and menus ask for, on plain and on dense screens.
    for (const int pixels : {16, 18, 22, 24, 32, 36, 44, 48})
        icon.addPixmap(QPixmap::fromImage(SymbolImage::tinted(name, SymbolImage::Weight::regular, pixels, colour)));
    icon.setIsMask(true);
    return icon;
}

} // namespace Kelvane::MenuSymbol
