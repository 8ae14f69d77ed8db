#include "Kelvane/Views/SymbolProvider.h"

#include "Kelvane/Symbols/SymbolImage.h"
#include "Support/FakeImages.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QTest>

using namespace Kelvane;
using namespace Qt::StringLiterals;

class SymbolProviderTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theSystemsSymbolTakesTheColour() {
        const QImage image = request(u"briefcase/regular/#c80000"_s, true);
        QCOMPARE(image.size(), QSize(24, 24));
        QCOMPARE(image.pixelColor(0, 0), QColor(0xC8, 0, 0));
        QCOMPARE(image.pixelColor(23, 23), QColor(0xC8, 0, 0));
    }

    void oursServesWhereTheSystemHasNone() {
        QCOMPARE(request(u"briefcase/regular/#c80000"_s, false),
                 SymbolImage::tinted(u"briefcase"_s, SymbolImage::Weight::regular, 24, QColor(0xC8, 0, 0)));
    }

    void marksAreAlwaysOurs() {
        QCOMPARE(request(u"briefcase/mark/#c80000"_s, true),
                 SymbolImage::tinted(u"briefcase"_s, SymbolImage::Weight::mark, 24, QColor(0xC8, 0, 0)));
    }

private:
    /// 24 pixels wide, from a system whose briefcase is a full square or not there.
    static QImage request(const QString& id, bool hasBriefcase) {
        Fakes::Images images;
        if (hasBriefcase) {
            QPixmap square(24, 24);
            square.fill(Qt::black);
            images.symbols.insert(u"briefcase"_s, QIcon(square));
        }
        QSize size;
        QImage image = SymbolProvider(images).requestImage(id, &size, QSize(24, 24));
        return size == image.size() ? image : QImage();
    }
};

QTEST_MAIN(SymbolProviderTest)
#include "SymbolProviderTest.moc"
