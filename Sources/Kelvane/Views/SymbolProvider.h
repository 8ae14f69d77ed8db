#pragma once

#include <QQuickImageProvider>

namespace Kelvane {

class Desktop;

/// Images of symbols for QML: "image://symbol/NAME/WEIGHT/COLOUR", where a colour of "none" keeps the picture's own.
/// The system's own symbols come first, ours serve where it has none. Main thread only.
class SymbolProvider : public QQuickImageProvider {
public:
    /// The desktop outlives the provider.
    explicit SymbolProvider(Desktop& desktop);

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;

private:
    QImage image(const QString& id, int pixels);

    Desktop& m_desktop;
};

} // namespace Kelvane
