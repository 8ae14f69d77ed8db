#pragma once

#include "Kelvane/Ports/Images.h"

#include <QColor>
#include <QTest>

#include <memory>
#include <thread>

/// What every adapter of the Images port keeps to. A test class derives from it, says how a computer is made, and adds
/// what is particular to its system.
class ImagesContract : public QObject {
    Q_OBJECT

protected:
    class Computer {
    public:
        virtual ~Computer() = default;
        virtual Kelvane::Images& images() = 0;
        /// A new bundle with an icon; gives its path.
        virtual QString makeBundle(const QImage& icon) = 0;
        /// A new bundle without an icon; gives its path.
        virtual QString makePlainBundle() = 0;
    };
    virtual std::unique_ptr<Computer> makeComputer() = 0;

private:
    /// An icon all in one colour.
    static QImage plain(const QColor& colour) {
        QImage image(64, 64, QImage::Format_ARGB32);
        image.fill(colour);
        return image;
    }

private Q_SLOTS:
    void anIconIsAsLargeAsAsked_data() {
        QTest::addColumn<int>("size");
        QTest::newRow("smaller than it was made") << 16;
        QTest::newRow("as it was made") << 64;
        QTest::newRow("larger than it was made") << 128;
    }
    void anIconIsAsLargeAsAsked() {
        QFETCH(int, size);
        const auto computer = makeComputer();
        const QString bundle = computer->makeBundle(plain(Qt::red));
        const std::optional<QImage> icon = computer->images().applicationIcon(bundle, size);
        QVERIFY(icon);
        QCOMPARE(icon->size(), QSize(size, size));
        QCOMPARE(icon->pixelColor(size / 2, size / 2), QColor(Qt::red));
    }

    void eachBundleHasItsOwn() {
        const auto computer = makeComputer();
        const QString red = computer->makeBundle(plain(Qt::red));
        const QString blue = computer->makeBundle(plain(Qt::blue));
        QCOMPARE(computer->images().applicationIcon(red, 32)->pixelColor(16, 16), QColor(Qt::red));
        QCOMPARE(computer->images().applicationIcon(blue, 32)->pixelColor(16, 16), QColor(Qt::blue));
    }

    void anotherThreadMayAskForIcons() {
        const auto computer = makeComputer();
        const QString bundle = computer->makeBundle(plain(Qt::red));
        std::optional<QImage> icon;
        std::thread([&] { icon = computer->images().applicationIcon(bundle, 32); }).join();
        QCOMPARE(icon, computer->images().applicationIcon(bundle, 32));
        QVERIFY(icon);
    }

    void aBundleWithoutOneHasNone() {
        const auto computer = makeComputer();
        QVERIFY(!computer->images().applicationIcon(computer->makePlainBundle(), 32));
    }

    void anUnknownSymbolHasNone() {
        const auto computer = makeComputer();
        QVERIFY(!computer->images().symbol(QStringLiteral("no.such.symbol"), QString()));
    }
};
