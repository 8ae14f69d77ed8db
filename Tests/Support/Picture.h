#pragma once

#include <QImage>
#include <QList>
#include <QRect>

#include <algorithm>
#include <cstdlib>

/// The comparison of pictures of a window: what a person would notice counts, how a letter's edge is smoothed does not.
namespace Picture {

inline constexpr int cell = 8;
/// Of 255, in the mean of a cell.
inline constexpr int noticeable = 14;

/// As pictures are kept: half as large, which evens out the edges of letters.
inline QImage small(const QImage& picture) {
    return picture.scaled(480, 480, Qt::KeepAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_RGB32);
}

/// The cells of eight pixels that look different; all of them when the pictures differ in size.
inline QList<QRect> changes(const QImage& before, const QImage& after) {
    if (before.isNull() || after.isNull() || before.size() != after.size())
        return {QRect(QPoint(), after.size())};
    const QSize cells((before.width() + cell - 1) / cell, (before.height() + cell - 1) / cell);
    const auto means = [&cells](const QImage& picture) {
        return picture.scaled(cells, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
            .convertToFormat(QImage::Format_RGB32);
    };
    const QImage left = means(before);
    const QImage right = means(after);
    QList<QRect> changes;
    for (int y = 0; y < cells.height(); ++y) {
        for (int x = 0; x < cells.width(); ++x) {
            const QRgb a = left.pixel(x, y);
            const QRgb b = right.pixel(x, y);
            const int difference =
                std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
            if (difference > noticeable)
                changes.append(QRect(x * cell, y * cell, cell, cell));
        }
    }
    return changes;
}

} // namespace Picture
