#include "Kelvane/ViewModels/UsageText.h"

#include "Kelvane/ViewModels/DateText.h"

#include <QStringList>

#include <cmath>

using namespace Qt::StringLiterals;

namespace Kelvane::UsageText {

namespace {

constexpr double activationPoints = 2;

QString counted(qint64 count, const QString& noun, const QString& plural) {
    return QString::number(count) + u' ' + (count == 1 ? noun : plural);
}

QString points(double value) {
    // One decimal is enough to tell rows apart, and a whole number needs none.
    const double rounded = std::round(value * 10) / 10;
    return QString::number(rounded, 'f', rounded == std::floor(rounded) ? 0 : 1);
}

} // namespace

QString duration(double seconds) {
    const auto minutes = static_cast<qint64>(seconds / 60);
    if (minutes < 1)
        return u"under a minute"_s;
    if (minutes < 60)
        return QString::number(minutes) + u'm';
    return QString::number(minutes / 60) + u"h "_s + QString::number(minutes % 60) + u'm';
}

QString detail(const DockCore::AppScore& score, DockCore::UsageWindow window) {
    QStringList parts;
    if (score.seconds > 0)
        parts += duration(score.seconds) + u" active"_s;
    if (score.activations > 0)
        parts += counted(score.activations, u"switch"_s, u"switches"_s);
    if (score.trackedDays > 0)
        parts += u"%1 of %2 days"_s.arg(score.trackedDays).arg(DockCore::days(window));
    else if (score.spotlightDays > 0)
        parts += u"opened on "_s + counted(score.spotlightDays, u"day"_s, u"days"_s) + u" (macOS history)"_s;
    return parts.join(u" · "_s);
}

QString subtitle(const std::optional<QDateTime>& trackingSince) {
    if (!trackingSince)
        return u"Tracking starts now. Until then, ranks use macOS's record of which days each app was opened."_s;
    return u"Tracking since "_s + DateText::day(*trackingSince) + u". Time counts only while you're active."_s;
}

QString reason(const DockCore::AppScore& score) {
    const double minutes = score.seconds / 60;
    const double switches = activationPoints * static_cast<double>(score.activations);
    // What the ranker gave for opened days is what the two measured parts leave of the score.
    const double opened = score.score - minutes - switches;
    QStringList parts;
    if (minutes > 0)
        parts += u"%1 for time active (1 a minute)"_s.arg(points(minutes));
    if (score.activations > 0)
        parts += u"%1 for %2 (2 each)"_s.arg(points(switches), counted(score.activations, u"switch"_s, u"switches"_s));
    if (score.spotlightDays > 0)
        parts += u"%1 for %2 opened (%3 each)"_s.arg(points(opened), counted(score.spotlightDays, u"day"_s, u"days"_s),
                                                     points(opened / static_cast<double>(score.spotlightDays)));
    const QString total = points(score.score);
    return total + (total == u"1" ? u" point: "_s : u" points: "_s) + parts.join(u", "_s);
}

} // namespace Kelvane::UsageText
