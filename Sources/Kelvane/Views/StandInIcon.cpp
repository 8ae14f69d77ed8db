#include "Kelvane/Views/StandInIcon.h"

#include <QGuiApplication>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QTextBoundaryFinder>

namespace Kelvane {

namespace {

/// The grid the shape is drawn on, and how much of it the shape fills.
constexpr qreal grid = 64;
constexpr qreal extent = 52;

QPainterPath squircle() {
    constexpr qreal middle = grid / 2;
    constexpr qreal half = extent / 2;
    // Flatter than a circle, rounder than a square: the controls lie a quarter of the way to the corner.
    constexpr qreal near = half * 0.245;
    QPainterPath path(QPointF(middle, middle - half));
    const auto corner = [&](qreal x, qreal y, bool sideways) {
        const QPointF along(middle + x * half, middle + y * (half - near));
        const QPointF across(middle + x * (half - near), middle + y * half);
        if (sideways)
            path.cubicTo(across, along, QPointF(middle + x * half, middle));
        else
            path.cubicTo(along, across, QPointF(middle, middle + y * half));
    };
    corner(1, -1, true);
    corner(1, 1, false);
    corner(-1, 1, true);
    corner(-1, -1, false);
    return path;
}

} // namespace

int StandInIcon::hue(const QString& identifier) {
    // FNV-1a: the same everywhere, unlike qHash.
    quint32 hash = 2166136261U;
    for (const char byte : identifier.toUtf8())
        hash = (hash ^ static_cast<quint8>(byte)) * 16777619U;
    return static_cast<int>(hash % 360U);
}

QString StandInIcon::initial(const QString& name) {
    const QString text = name.trimmed();
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    const qsizetype end = finder.toNextBoundary();
    return end < 0 ? QString() : text.first(end).toUpper();
}

QImage StandInIcon::draw(const QString& identifier, const QString& name, int pixels) {
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixels / grid, pixels / grid);

    const int shade = hue(identifier);
    QLinearGradient ground(0, (grid - extent) / 2, 0, (grid + extent) / 2);
    ground.setColorAt(0, QColor::fromHsl(shade, 190, 152));
    ground.setColorAt(1, QColor::fromHsl(shade, 190, 112));
    const QPainterPath shape = squircle();
    painter.setPen(QPen(QColor(0, 0, 0, 26), 1));
    painter.setBrush(ground);
    painter.drawPath(shape);

    QFont font = QGuiApplication::font();
    font.setPixelSize(28);
    font.setWeight(QFont::DemiBold);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRectF(0, 0, grid, grid), Qt::AlignCenter, initial(name));
    return image;
}

} // namespace Kelvane
