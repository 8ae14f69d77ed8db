#pragma once

#include <QQuickImageProvider>

namespace Kelvane {

/// The soft edge under what floats, as the nine-patch that a BorderImage stretches:
/// "image://shadow/SPREAD/RADIUS/COLOUR". The renderer used here blurs nothing by itself. Main thread only.
class ShadowProvider : public QQuickImageProvider {
public:
    ShadowProvider();

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

} // namespace Kelvane
