#include "Kelvane/Symbols/SymbolImage.h"
#include "DockCore/Profile.h"

#include <QTest>

using namespace Kelvane;
using namespace Qt::StringLiterals;

class SymbolImageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyNameThatTheApplicationUsesIsDrawn_data() {
        QTest::addColumn<QString>("name");
        QStringList names = DockCore::Profile::symbols();
        for (const char* name : {"dock.rectangle",
                                 "chart.bar.xaxis",
                                 "square.stack.3d.up",
                                 "clock.arrow.circlepath",
                                 "gearshape",
                                 "pause.circle",
                                 "pause.circle.fill",
                                 "exclamationmark.triangle.fill",
                                 "checkmark.circle.fill",
                                 "lock.shield",
                                 "info.circle",
                                 "chart.bar",
                                 "pin.fill",
                                 "chart.bar.fill",
                                 "square.stack.3d.up.fill",
                                 "arrow.uturn.backward.circle.fill",
                                 "lock.shield.fill",
                                 "plus",
                                 "plus.square.on.square",
                                 "chevron.up",
                                 "chevron.down",
                                 "minus",
                                 "xmark",
                                 "checkmark",
                                 "magnifyingglass",
                                 "chevron.up.chevron.down",
                                 "progress",
                                 "arrow.left",
                                 "arrow.right",
                                 "arrow.left.arrow.right"})
            names.append(QString::fromLatin1(name));
        names.removeDuplicates();
        for (const QString& name : names)
            QTest::newRow(qPrintable(name)) << name;
    }
    void everyNameThatTheApplicationUsesIsDrawn() {
        QFETCH(QString, name);
        using enum SymbolImage::Weight;
        for (const SymbolImage::Weight weight : {regular, small, mark}) {
            const QImage image = SymbolImage::tinted(name, weight, 32, Qt::red);
            QCOMPARE(image.size(), QSize(32, 32));
            QVERIFY(inked(image) > 20);
        }
    }

    void theTintIsTheOnlyColour() {
        const QImage image = SymbolImage::tinted(u"briefcase"_s, SymbolImage::Weight::regular, 64, QColor(10, 200, 30));
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y).alpha() == 255)
                    QCOMPARE(image.pixelColor(x, y), QColor(10, 200, 30));
            }
        }
    }

    void smallOnesAreDrawnBolder() {
        const QImage regular = SymbolImage::tinted(u"plus"_s, SymbolImage::Weight::regular, 96, Qt::black);
        const QImage small = SymbolImage::tinted(u"plus"_s, SymbolImage::Weight::small, 96, Qt::black);
        const QImage mark = SymbolImage::tinted(u"plus"_s, SymbolImage::Weight::mark, 96, Qt::black);
        QVERIFY(inked(regular) < inked(small));
        QVERIFY(inked(small) < inked(mark));
    }

    void aNameThatIsNoneGivesNothing() {
        QVERIFY(SymbolImage::tinted(u"no.such.symbol"_s, SymbolImage::Weight::regular, 16, Qt::black).isNull());
        QVERIFY(SymbolImage::tinted(u"../secret"_s, SymbolImage::Weight::regular, 16, Qt::black).isNull());
        QVERIFY(SymbolImage::tinted(u"plus"_s, SymbolImage::Weight::regular, 0, Qt::black).isNull());
    }

    void theMarkKeepsItsColours() {
        const QImage mark = SymbolImage::picture(u"kelvane-mark"_s, 96);
        QCOMPARE(mark.pixelColor(48, 20), QColor(0x3F, 0x57, 0xD6));
        QCOMPARE(mark.pixelColor(32, 50), QColor(Qt::white));
    }

private:
    static int inked(const QImage& image) {
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                count += image.pixelColor(x, y).alpha() > 127 ? 1 : 0;
        }
        return count;
    }
};

QTEST_GUILESS_MAIN(SymbolImageTest)
#include "SymbolImageTest.moc"
