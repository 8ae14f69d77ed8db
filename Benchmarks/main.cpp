// Measures what people wait for, each figure beside a floor that is measured in the same run, so that the ratio says
// the same on a fast machine and on a slow one. With "--strict" the exit status is 1 when an aim is missed.

#include "CommandLine.h"
#include "Fixture.h"
#include "Logic.h"
#include "Platform/Linux/LinuxPlatform.h"
#include "Table.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int dockTiles = 24;

QList<Figure> figures() {
    QList<Figure> figures;
    const auto add = [&figures](const QString& name, const Stopwatch::Pair& pair, const QString& floorName,
                                std::optional<double> ratioAim, std::optional<double> timeAim) {
        figures.append({name, pair.measured, floorName, pair.floor, ratioAim, timeAim});
    };
    {
        const Fixture fixture(500, dockTiles);
        add(u"scan 500 bundles"_s, Logic::scanning(fixture, 21), u"open and parse the 500 Info.plist files"_s, 1.5, {});
        add(u"scan them again, nothing changed"_s, Logic::scanningAgain(fixture, 21), u"stat the 500 files"_s, {}, {});
    }
    {
        const Fixture fixture(300, dockTiles);
        add(u"rank 300 applications over 91 days, and plan"_s, Logic::rankingAndPlanning(fixture, 51),
            u"add the window's numbers up and sort"_s, {}, 0.005);
        add(u"load and save that usage file"_s, Logic::loadingAndSaving(fixture, 11),
            u"parse and write the same JSON"_s, 2, {});
    }
    {
        const Fixture fixture(30, dockTiles);
        add(u"kelvanectl apply on a Dock of 24 tiles"_s, CommandLine::applying(fixture, 21), u"kelvanectl --version"_s,
            3, {});
    }
    return figures;
}

QList<GrowthFigure> growth() {
    QList<GrowthFigure> figures = {
        {u"first scan"_s, {}}, {u"rank and plan"_s, {}}, {u"load and save usage"_s, {}}, {u"kelvanectl apply"_s, {}}};
    for (const int applications : {10, 30, 100, 300, 1000}) {
        const Fixture fixture(applications, dockTiles);
        figures[0].points.append({applications, Logic::scanning(fixture, 7).measured});
        figures[1].points.append({applications, Logic::rankingAndPlanning(fixture, 15).measured});
        figures[2].points.append({applications, Logic::loadingAndSaving(fixture, 5).measured});
        figures[3].points.append({applications, CommandLine::applying(fixture, 5).measured});
    }
    return figures;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().sliced(1);
    if (!arguments.isEmpty() && arguments != QStringList{u"--strict"_s}) {
        std::fprintf(stderr, "kelvane-bench: the only option is --strict\n");
        return 2;
    }
    LinuxPlatform platform;
    const DockCore::PlatformScope scope(platform.platform());
    if (!Fixture(1, 1).hasMetadata()) {
        std::printf("The temporary folder keeps no extended attributes: no application has a record of opened days.\n");
    }
    const QList<Figure> measured = figures();
    Table::print(measured);
    const QList<GrowthFigure> grown = growth();
    Table::print(grown);
    const bool isMet = std::ranges::all_of(measured, [](const Figure& figure) { return figure.isWithinAim(); }) &&
                       std::ranges::all_of(grown, [](const GrowthFigure& figure) { return figure.isWithinAim(); });
    return isMet || arguments.isEmpty() ? 0 : 1;
}
