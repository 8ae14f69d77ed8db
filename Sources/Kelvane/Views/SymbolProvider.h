#pragma once

#include <QQuickImageProvider>

namespace Kelvane {

class Images;

/// Images of symbols for QML: "image://symbol/NAME/WEIGHT/COLOUR", where a colour of "none" keeps the picture's own.
/// The system's own symbols come first, ours serve where it has none. Main thread only.
class SymbolProvider : public QQuickImageProvider {
public:
    /// The images outlive the provider.
    explicit SymbolProvider(Images& images);

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;

private:
    QImage image(const QString& id, int pixels);

    Images& m_images;
};

} // namespace Kelvane
