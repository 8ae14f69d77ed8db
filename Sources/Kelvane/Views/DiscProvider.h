#pragma once

#include <QQuickImageProvider>

namespace Kelvane {

/// Images of discs with a symbol for QML: "image://disc/SYMBOL/WEIGHT/SHARE/RIM/INK/FILL/RIM-COLOUR", where the
/// symbol's side and the rim's width are shares of the whole. Main thread only.
class DiscProvider : public QQuickImageProvider {
public:
    DiscProvider();

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

} // namespace Kelvane
