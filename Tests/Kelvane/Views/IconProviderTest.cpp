#include "Kelvane/Views/IconProvider.h"

#include "Kelvane/ViewModels/IconAddress.h"
#include "Kelvane/Views/StandInIcon.h"
#include "Support/FakeImages.h"
#include "Support/FakeServices.h"

#include <QGuiApplication>
#include <QQuickTextureFactory>
#include <QTest>

#include <memory>

using namespace Kelvane;
using namespace Qt::StringLiterals;

class IconProviderTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anApplicationIsShownByItsIcon() {
        Fakes::Images images;
        QImage blue(64, 64, QImage::Format_ARGB32_Premultiplied);
        blue.fill(Qt::blue);
        images.icons.insert(m_mail.path, blue);
        QCOMPARE(request(images, m_mail), blue.scaled(28, 28));
    }

    void oneWithoutAnIconIsShownByItsStandIn() {
        Fakes::Images images;
        QCOMPARE(request(images, m_mail), StandInIcon::draw(m_mail.bundleID, m_mail.name, 28));
    }

private:
    Fakes::World m_world;
    const IconAddress m_mail = {u"org.example.mail"_s, u"Mail"_s, u"/Applications/Mail.app"_s};

    /// What QML gets, 28 pixels wide.
    QImage request(Fakes::Images& images, const IconAddress& address) {
        auto provider = std::make_unique<IconProvider>(m_world.catalog, images);
        const std::unique_ptr<QQuickImageResponse> response(
            provider->requestImageResponse(address.url().section(u'/', 3), QSize(28, 28)));
        // Its destructor waits for icons that are being read.
        provider.reset();
        return std::unique_ptr<QQuickTextureFactory>(response->textureFactory())->image();
    }
};

QTEST_MAIN(IconProviderTest)
#include "IconProviderTest.moc"
