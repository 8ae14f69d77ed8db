#pragma once

#include "Stopwatch.h"

#include <QList>
#include <QString>

#include <optional>

/// One figure beside its floor, in seconds or bytes.
struct Figure {
    enum class Unit { time, memory };

    QString name;
    Stopwatch::Pair pair;
    QString floorName;
    /// The most that it may be, as a multiple of the floor or in seconds.
    std::optional<double> ratioAim = {};
    std::optional<double> timeAim = {};
    Unit unit = Unit::time;

    bool isWithinAim() const;
};

/// One kind of work at several sizes, each with the number of applications and its time in seconds.
struct GrowthFigure {
    QString name;
    struct Point {
        int applications = 0;
        double seconds = 0;
    };
    QList<Point> points;

    /// How much longer one application takes at the largest size than at the smallest, when linear growth is 1.
    double steepness() const;
    bool isWithinAim() const;
};

/// What the person sees: aligned columns on standard output.
namespace Table {

void print(const QList<Figure>& figures);
void print(const QList<GrowthFigure>& figures);

} // namespace Table
