#include "Frames.h"

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using Runs = QList<QList<Program::Line>>;

double longestOf(const Runs& runs, const QStringList& kinds) {
    double longest = 0;
    for (qsizetype step = 0; step < runs.first().size(); ++step) {
        if (!kinds.contains(runs.first()[step].name)) {
            continue;
        }
        std::vector<double> perRun;
        for (const QList<Program::Line>& run : runs) {
            perRun.push_back(*std::ranges::max_element(run[step].numbers));
        }
        longest = std::max(longest, Stopwatch::middle(perRun));
    }
    return longest;
}

double middleOf(const Runs& runs, const QStringList& kinds) {
    std::vector<double> frames;
    for (const QList<Program::Line>& run : runs) {
        for (const Program::Line& step : run) {
            if (kinds.contains(step.name)) {
                frames.insert(frames.end(), step.numbers.begin(), step.numbers.end());
            }
        }
    }
    return Stopwatch::middle(frames);
}

} // namespace

Frames::Frames(int runs) {
    for (int run = 0; run < runs; ++run) {
        m_measured.append(Program::lines(u"kelvane-bench-window"_s, {u"frames"_s, u"kelvane"_s}));
        m_floor.append(Program::lines(u"kelvane-bench-window"_s, {u"frames"_s, u"bare"_s}));
    }
}

Stopwatch::Pair Frames::longest(const QStringList& kinds) const {
    return {.measured = longestOf(m_measured, kinds), .floor = longestOf(m_floor, kinds)};
}

Stopwatch::Pair Frames::middle(const QStringList& kinds) const {
    return {.measured = middleOf(m_measured, kinds), .floor = middleOf(m_floor, kinds)};
}
