#include "Table.h"

#include <cstdio>

namespace {

/// Sorting, and caches of the processor that hold ten applications but not a thousand, cost about this much more; what
/// grows with the square would show a hundred.
constexpr double steepestGrowth = 1.5;

QByteArray milliseconds(double seconds) {
    return QByteArray::number(seconds * 1000, 'f', seconds < 0.001 ? 3 : 2) + " ms";
}

QByteArray amount(double amount, Figure::Unit unit) {
    constexpr double megabyte = 1024 * 1024;
    return unit == Figure::Unit::time ? milliseconds(amount) : QByteArray::number(amount / megabyte, 'f', 2) + " MB";
}

const char* verdict(bool isWithinAim) {
    return isWithinAim ? "met" : "MISSED";
}

} // namespace

bool Figure::isWithinAim() const {
    return (!ratioAim || pair.measured <= *ratioAim * pair.floor) && (!timeAim || pair.measured <= *timeAim);
}

double GrowthFigure::steepness() const {
    const auto perApplication = [](const Point& point) { return point.seconds / point.applications; };
    return perApplication(points.last()) / perApplication(points.first());
}

bool GrowthFigure::isWithinAim() const {
    return steepness() <= steepestGrowth;
}

void Table::print(const QList<Figure>& figures) {
    std::printf("%-50s %11s %11s %8s  %-14s floor\n", "figure", "measured", "floor", "ratio", "aim");
    for (const Figure& figure : figures) {
        QByteArray aim = "-";
        if (figure.ratioAim || figure.timeAim) {
            aim = figure.ratioAim ? QByteArray::number(*figure.ratioAim) + "x " : milliseconds(*figure.timeAim) + ' ';
            aim += verdict(figure.isWithinAim());
        }
        std::printf("%-50s %11s %11s %7.2fx  %-14s %s\n", qUtf8Printable(figure.name),
                    amount(figure.pair.measured, figure.unit).constData(),
                    amount(figure.pair.floor, figure.unit).constData(), figure.pair.measured / figure.pair.floor,
                    aim.constData(), qUtf8Printable(figure.floorName));
    }
}

void Table::print(const QList<GrowthFigure>& figures) {
    std::printf("\n%-36s", "growth with the number of applications");
    for (const GrowthFigure::Point& point : figures.first().points) {
        std::printf(" %10d", point.applications);
    }
    std::printf("  %s\n", "time per application, largest to smallest; aim: linear, at most 1.5");
    for (const GrowthFigure& figure : figures) {
        std::printf("%-38s", qUtf8Printable(figure.name));
        for (const GrowthFigure::Point& point : figure.points) {
            std::printf(" %10s", milliseconds(point.seconds).constData());
        }
        std::printf("  %.2f %s\n", figure.steepness(), verdict(figure.isWithinAim()));
    }
}
