#pragma once

#include <QQuickAsyncImageProvider>
#include <QThreadPool>

namespace DockCore {
class AppCatalog;
}

namespace Kelvane {

class Images;

/// Icons of applications for QML, by the end of an IconAddress. They are read or drawn in the background; an
/// application without an icon is shown by its stand-in, so that there is always an image. QML asks on a thread of its
/// own.
class IconProvider : public QQuickAsyncImageProvider {
public:
    /// Both outlive the provider.
    IconProvider(DockCore::AppCatalog& catalog, Images& images);
    /// Waits for icons that are being read.
    ~IconProvider() override;

    QQuickImageResponse* requestImageResponse(const QString& id, const QSize& requestedSize) override;

private:
    DockCore::AppCatalog& m_catalog;
    Images& m_images;
    QThreadPool m_pool;
};

} // namespace Kelvane
