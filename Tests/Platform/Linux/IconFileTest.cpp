#include "Platform/Linux/IconFile.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

using namespace Platform;
using namespace Qt::StringLiterals;

namespace {

QByteArray png(int side, const QColor& colour) {
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(colour);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

QByteArray number(qsizetype value) {
    QByteArray bytes(4, '\0');
    qToBigEndian(static_cast<quint32>(value), bytes.data());
    return bytes;
}

QByteArray element(const char* type, const QByteArray& content) {
    return QByteArray(type) + number(content.size() + 8) + content;
}

QByteArray container(const QByteArray& elements) {
    return QByteArray("icns") + number(elements.size() + 8) + elements;
}

void write(const QString& path, const QByteArray& bytes) {
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QByteArray info(const QString& icon) {
    return u"<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>CFBundleIconFile</key><string>%1</string></dict>"
           "</plist>"_s.arg(icon)
               .toUtf8();
}

} // namespace

class IconFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theSmallestImageThatNeedNotGrowIsTaken_data() {
        QTest::addColumn<int>("size");
        QTest::addColumn<QColor>("colour");
        QTest::newRow("smaller than all") << 16 << QColor(Qt::red);
        QTest::newRow("exactly one of them") << 64 << QColor(Qt::green);
        QTest::newRow("between two") << 48 << QColor(Qt::green);
        QTest::newRow("larger than all") << 256 << QColor(Qt::blue);
    }
    void theSmallestImageThatNeedNotGrowIsTaken() {
        QFETCH(int, size);
        QFETCH(QColor, colour);
        const QByteArray icns = container(element("TOC ", QByteArray(24, '\0')) + element("ic07", png(128, Qt::blue)) +
                                          element("ic11", png(32, Qt::red)) + element("is32", QByteArray(99, 'x')) +
                                          element("ic12", png(64, Qt::green)));
        const std::optional<QImage> image = IconFile::read(icns, size);
        QVERIFY(image);
        QCOMPARE(image->size(), QSize(size, size));
        QCOMPARE(image->pixelColor(size / 2, size / 2), colour);
    }

    void drawingsAndImagesAreReadToo() {
        const QByteArray svg =
            R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 8 8"><rect width="8" height="8" fill="#00f"/></svg>)";
        QCOMPARE(IconFile::read(svg, 40)->pixelColor(20, 20), QColor(Qt::blue));
        QCOMPARE(IconFile::read(png(10, Qt::red), 40)->pixelColor(20, 20), QColor(Qt::red));
    }

    void whatIsDamagedHasNoImage_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("text") << QByteArray("an icon");
        QTest::newRow("a container of nothing") << container({});
        QTest::newRow("an element longer than the file") << QByteArray("icns\0\0\0\x20ic07\xff\xff\xff\xff", 16);
        QTest::newRow("an element of no length") << QByteArray("icns\0\0\0\x10ic07\0\0\0\0", 16);
        QTest::newRow("a PNG cut short") << container(element("ic07", png(128, Qt::red).first(60)));
        QTest::newRow("an SVG cut short") << QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\"><rect");
    }
    void whatIsDamagedHasNoImage() {
        QFETCH(QByteArray, bytes);
        QVERIFY(!IconFile::read(bytes, 32));
    }

    void theBundleNamesItsIcon_data() {
        QTest::addColumn<QString>("named");
        QTest::addColumn<QString>("file");
        QTest::newRow("with its ending") << u"App.icns"_s << u"App.icns"_s;
        QTest::newRow("without its ending") << u"App"_s << u"App.icns"_s;
        QTest::newRow("an image") << u"App"_s << u"App.png"_s;
        QTest::newRow("a path leads nowhere but to its file") << u"../../../App"_s << u"App.icns"_s;
        QTest::newRow("unnamed, but the only one") << QString() << u"Other.icns"_s;
    }
    void theBundleNamesItsIcon() {
        QFETCH(QString, named);
        QFETCH(QString, file);
        const QTemporaryDir folder;
        const QString bundle = folder.filePath(u"X.app"_s);
        write(bundle + u"/Contents/Info.plist"_s, info(named));
        write(bundle + u"/Contents/Resources/"_s + file, container(element("ic07", png(128, Qt::red))));
        QCOMPARE(IconFile::inBundle(bundle), std::optional(bundle + u"/Contents/Resources/"_s + file));
    }

    void aBundleWithoutOneHasNone() {
        const QTemporaryDir folder;
        QVERIFY(!IconFile::inBundle(folder.filePath(u"X.app"_s)));
        write(folder.filePath(u"X.app/Contents/Info.plist"_s), info(u"Missing"_s));
        QVERIFY(!IconFile::inBundle(folder.filePath(u"X.app"_s)));
    }
};

QTEST_GUILESS_MAIN(IconFileTest)
#include "IconFileTest.moc"
