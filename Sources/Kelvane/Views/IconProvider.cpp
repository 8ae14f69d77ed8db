#include "Kelvane/Views/IconProvider.h"

#include "DockCore/AppCatalog.h"
#include "Kelvane/Ports/Images.h"
#include "Kelvane/ViewModels/IconAddress.h"
#include "Kelvane/Views/StandInIcon.h"

#include <QQuickTextureFactory>

#include <algorithm>
#include <atomic>
#include <memory>

namespace Kelvane {

namespace {

constexpr int usualPixels = 64;

QImage icon(DockCore::AppCatalog& catalog, Images& images, const IconAddress& address, int pixels) {
    QString path = address.path;
    if (path.isEmpty() && !address.bundleID.isEmpty()) {
        if (const std::optional<DockCore::AppInfo> app = catalog.info(address.bundleID))
            path = app->path;
    }
    if (!path.isEmpty()) {
        if (const std::optional<QImage> image = images.applicationIcon(path, pixels))
            return *image;
    }
    return StandInIcon::draw(address.bundleID.isEmpty() ? address.name : address.bundleID, address.name, pixels);
}

/// QML owns it and deletes it after `finished`; a request that is no longer wanted is not even begun.
class IconResponse : public QQuickImageResponse {
public:
    QQuickTextureFactory* textureFactory() const override {
        return QQuickTextureFactory::textureFactoryForImage(m_image);
    }
    void cancel() override { m_isCancelled = true; }

    bool isCancelled() const { return m_isCancelled; }
    void finish(const QImage& image) {
        m_image = image;
        Q_EMIT finished();
    }

private:
    QImage m_image;
    std::atomic<bool> m_isCancelled = false;
};

} // namespace

IconProvider::IconProvider(DockCore::AppCatalog& catalog, Images& images)
    : m_catalog(catalog)
    , m_images(images) {
    m_pool.setMaxThreadCount(std::max(1, QThread::idealThreadCount() / 2));
}

IconProvider::~IconProvider() {
    m_pool.waitForDone();
}

QQuickImageResponse* IconProvider::requestImageResponse(const QString& id, const QSize& requestedSize) {
    const IconAddress address = IconAddress::parse(id).value_or(IconAddress());
    const int requested = std::max(requestedSize.width(), requestedSize.height());
    const int pixels = requested > 0 ? requested : usualPixels;
    auto* response = new IconResponse;
    m_pool.start([this, response, address, pixels] {
        response->finish(response->isCancelled() ? QImage() : icon(m_catalog, m_images, address, pixels));
    });
    return response;
}

} // namespace Kelvane
