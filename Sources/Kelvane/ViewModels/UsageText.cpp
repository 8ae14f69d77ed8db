#include "Kelvane/ViewModels/UsageText.h"

#include "Kelvane/Counted.h"
#include "Kelvane/ViewModels/DateText.h"

#include <QStringList>

#include <cmath>

using namespace Qt::StringLiterals;

namespace Kelvane::UsageText {

namespace {

QString points(double value) {
    // One decimal is enough to tell rows apart, and a whole number needs none.
    const double rounded = std::round(value * 10) / 10;
    return QString::number(rounded, 'f', rounded == std::floor(rounded) ? 0 : 1);
}

/// What one of the `count` that made these points is worth.
QString each(double value, double count) {
    return points(value / count);
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
        parts += u"opened on "_s + counted(score.spotlightDays, u"day"_s) + u" (macOS history)"_s;
    return parts.join(u" · "_s);
}

QString subtitle(const std::optional<QDateTime>& trackingSince) {
    if (!trackingSince)
        return u"Tracking starts now. Until then, ranks use macOS's record of which days each app was opened."_s;
    return u"Tracking since "_s + DateText::day(*trackingSince) + u". Time counts only while you're active."_s;
}

QString reason(const DockCore::AppScore& score) {
    QStringList parts;
    if (score.seconds > 0)
        parts += u"%1 for time active (%2 a minute)"_s.arg(points(score.minutePoints),
                                                           each(score.minutePoints, score.seconds / 60));
    if (score.activations > 0)
        parts += u"%1 for %2 (%3 each)"_s.arg(points(score.activationPoints),
                                              counted(score.activations, u"switch"_s, u"switches"_s),
                                              each(score.activationPoints, static_cast<double>(score.activations)));
    if (score.spotlightDays > 0)
        parts +=
            u"%1 for %2 opened (%3 each)"_s.arg(points(score.spotlightPoints), counted(score.spotlightDays, u"day"_s),
                                                each(score.spotlightPoints, static_cast<double>(score.spotlightDays)));
    const QString total = points(score.score);
    return total + (total == u"1" ? u" point: "_s : u" points: "_s) + parts.join(u", "_s);
}

} // namespace Kelvane::UsageText
