// Measures what people wait for, each figure beside a floor that is measured in the same run, so that the ratio says
// the same on a fast machine and on a slow one. With "--strict" the exit status is 1 when an aim is missed.

#include "Application.h"
#include "CommandLine.h"
#include "Fixture.h"
#include "Frames.h"
#include "Kelvane/Pane.h"
#include "Logic.h"
#include "Platform/Linux/LinuxServices.h"
#include "Support/PrivateDesktop.h"
#include "Table.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int dockTiles = 24;
/// Two frames of a usual display: nobody sees that one was left out.
constexpr double longestFrame = 0.032;
/// What the heap adds while it settles, which it has by the thirtieth time; from there to the eightieth it adds a
/// thousandth.
constexpr double heapNoise = 1.03;

QList<Figure> figures() {
    QList<Figure> figures;
    const auto add = [&figures](const QString& name, const Stopwatch::Pair& pair, const QString& floorName,
                                std::optional<double> ratioAim, std::optional<double> timeAim) {
        figures.append({name, pair, floorName, ratioAim, timeAim});
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
        add(u"load that usage file"_s, Logic::loading(fixture, 11), u"parse the same JSON"_s, 2, {});
        add(u"load and save it"_s, Logic::loadingAndSaving(fixture, 11), u"parse and write the same JSON"_s, 2, {});
    }
    {
        const Fixture fixture(30, dockTiles);
        add(u"kelvanectl apply on a Dock of 24 tiles"_s, CommandLine::applying(fixture, 21), u"kelvanectl --version"_s,
            3, {});
    }
    return figures;
}

/// The application as people have it: a hundred applications, a third of them in the Dock.
QList<Figure> applicationFigures() {
    const Fixture fixture(100, 32);
    fixture.drawIcons();
    const Application::Opening opening = Application::opening(7);
    const QString bareWindow = u"a window with a bare list"_s;
    return {
        {.name = u"kelvane without its window"_s,
         .pair = Application::memory(3),
         .floorName = u"a status item and a timer"_s,
         .ratioAim = 1.35,
         .unit = Figure::Unit::memory},
        {.name = u"first frame of the window"_s, .pair = opening.firstFrame, .floorName = bareWindow, .ratioAim = 1.5},
        {.name = u"first frame with its pane"_s, .pair = opening.filled, .floorName = bareWindow},
        {.name = u"written to when closed for the 20th time"_s,
         .pair = Application::memoryAfterReopening(1),
         .floorName = u"for the third time"_s,
         .ratioAim = heapNoise,
         .unit = Figure::Unit::memory}};
}

/// The window with as much in it as it has to bear.
QList<Figure> frameFigures() {
    const Fixture fixture(500, 60);
    fixture.drawIcons();
    const Frames frames(3);
    QList<Figure> figures;
    const auto add = [&](const QString& name, const QStringList& kinds, const QString& floorName) {
        figures.append({.name = name + u", longest frame"_s,
                        .pair = frames.longest(kinds),
                        .floorName = floorName,
                        .timeAim = longestFrame});
        figures.append({.name = name + u", median frame"_s, .pair = frames.middle(kinds), .floorName = floorName});
    };
    const QString newRows = u"new rows in a bare list"_s;
    QStringList panes;
    for (const Kelvane::PaneInfo& pane : Kelvane::allPanes()) {
        panes.append(pane.name);
    }
    add(u"switch panes"_s, panes, newRows);
    add(u"switch the profile, 60 tiles"_s, {u"profile"_s}, newRows);
    add(u"show Usage with 500 rows"_s, {u"usage"_s}, newRows);
    add(u"scroll it"_s, {u"scroll"_s}, u"scroll a bare list"_s);
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
    if (!Fixture(1, 1).hasMetadata()) {
        std::printf("The temporary folder keeps no extended attributes: no application has a record of opened days.\n");
    }
    QList<Figure> measured = figures();
    PrivateDesktop desktop;
    const QTemporaryDir runtime;
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime.path()));
    if (!desktop.startDisplay() || !desktop.startSessionBus()) {
        std::printf("There is no X server to start, so the windows are drawn on none.\n");
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    measured += applicationFigures() + frameFigures();
    Table::print(measured);
    const QList<GrowthFigure> grown = growth();
    Table::print(grown);
    const bool isMet = std::ranges::all_of(measured, [](const Figure& figure) { return figure.isWithinAim(); }) &&
                       std::ranges::all_of(grown, [](const GrowthFigure& figure) { return figure.isWithinAim(); });
    return isMet || arguments.isEmpty() ? 0 : 1;
}
