#include "Kelvane/Views/SymbolCache.h"

#include "Support/FakeImages.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QTest>

using namespace Kelvane;
using namespace Qt::StringLiterals;

class SymbolCacheTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void systemSymbolTakesTheTint() {
        giveBriefcase();
        const QImage image = SymbolCache(m_images, nullptr).image(briefcase);
        QCOMPARE(image.size(), QSize(24, 24));
        QCOMPARE(image.pixelColor(0, 0), red);
        QCOMPARE(image.pixelColor(23, 23), red);
    }

    void ownSymbolServesWhereTheSystemHasNone() {
        QCOMPARE(SymbolCache(m_images, nullptr).image(briefcase),
                 SymbolImage::tinted(u"briefcase"_s, SymbolImage::Weight::regular, 24, red));
    }

    void symbolWithoutTintKeepsItsColours() {
        SymbolLook look = briefcase;
        look.tint = QColor();
        QCOMPARE(SymbolCache(m_images, nullptr).image(look), SymbolImage::picture(u"briefcase"_s, 24));
    }

    void symbolOnADiscIsAlwaysOurs() {
        const QImage ours = SymbolCache(m_images, nullptr).image(disc);
        giveBriefcase();
        QCOMPARE(SymbolCache(m_images, nullptr).image(disc), ours);
    }

    void discHasItsFillInsideItsRim() {
        const QImage image = SymbolCache(m_images, nullptr).image(disc);
        QCOMPARE(image.size(), QSize(40, 40));
        QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
        QCOMPARE(image.pixelColor(20, 2), disc.rimColour);
        QCOMPARE(image.pixelColor(20, 6), disc.fill);
    }

    void sameLookIsDrawnOnce() {
        SymbolCache cache(m_images, nullptr);
        const QImage first = cache.image(briefcase);
        QCOMPARE(cache.image(briefcase).cacheKey(), first.cacheKey());
        SymbolLook larger = briefcase;
        larger.side = 25;
        QVERIFY(cache.image(larger).cacheKey() != first.cacheKey());
    }

    void oldImagesGiveWayToNewOnes() {
        SymbolCache cache(m_images, nullptr);
        const qint64 first = cache.image(briefcase).cacheKey();
        SymbolLook large = briefcase;
        for (large.side = 200; large.side < 210; ++large.side)
            static_cast<void>(cache.image(large));
        QVERIFY(cache.image(briefcase).cacheKey() != first);
    }

    void cleanup() { m_images.symbols.clear(); }

private:
    /// The system's briefcase is a full square.
    void giveBriefcase() {
        QPixmap square(24, 24);
        square.fill(Qt::black);
        m_images.symbols.insert(u"briefcase"_s, QIcon(square));
    }

    const QColor red{0xC8, 0, 0};
    const SymbolLook briefcase{.name = u"briefcase"_s, .side = 24, .tint = red};
    const SymbolLook disc{.name = u"briefcase"_s,
                          .weight = SymbolImage::Weight::mark,
                          .side = 20,
                          .tint = red,
                          .disc = 40,
                          .rim = 4,
                          .fill = QColor(Qt::green),
                          .rimColour = QColor(Qt::blue)};
    Fakes::Images m_images;
};

QTEST_MAIN(SymbolCacheTest)
#include "SymbolCacheTest.moc"
