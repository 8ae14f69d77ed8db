// Draws the application's icon from its one source: `render-icon SOURCE.svg FILE.png SIZE` or `render-icon SOURCE.svg
// FILE.icns`. A tool of the build, the same on every system.

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QtEndian>

#include <array>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

QByteArray png(QSvgRenderer& source, int size) {
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    source.render(&painter);
    painter.end();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data();
}

QByteArray chunk(const QByteArray& type, const QByteArray& content) {
    QByteArray length(4, Qt::Uninitialized);
    qToBigEndian(static_cast<quint32>(content.size() + 8), length.data());
    return type + length + content;
}

QByteArray icns(QSvgRenderer& source) {
    struct Size {
        const char* type;
        int pixels;
    };
    // 16 and 32 points at double size, then 128, 256 and 512 points at both.
    constexpr std::array sizes = {Size{"ic11", 32},  Size{"ic12", 64},  Size{"ic07", 128}, Size{"ic13", 256},
                                  Size{"ic08", 256}, Size{"ic14", 512}, Size{"ic09", 512}, Size{"ic10", 1024}};
    QByteArray content;
    for (const Size& size : sizes) {
        content += chunk(size.type, png(source, size.pixels));
    }
    return chunk("icns", content);
}

int fail(const char* reason) {
    std::fprintf(stderr, "render-icon: %s\n", reason);
    return 1;
}

} // namespace

int main(int argc, char** argv) {
    // Nothing is shown, so no display is needed.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    const bool isICNS = arguments.size() == 3 && arguments[2].endsWith(u".icns"_s);
    const int size = arguments.size() == 4 ? arguments[3].toInt() : 0;
    if (!isICNS && size <= 0) {
        return fail("expected SOURCE.svg FILE.png SIZE, or SOURCE.svg FILE.icns");
    }
    QSvgRenderer source(arguments[1]);
    if (!source.isValid()) {
        return fail("the source cannot be read");
    }
    const QByteArray bytes = isICNS ? icns(source) : png(source, size);
    QFile file(arguments[2]);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush()) {
        return fail("the file cannot be written");
    }
    return 0;
}
