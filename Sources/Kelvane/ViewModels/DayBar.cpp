#include "Kelvane/ViewModels/DayBar.h"

#include "DockCore/UsageStore.h"
#include "Kelvane/ViewModels/DateText.h"
#include "Kelvane/ViewModels/UsageText.h"

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace Kelvane {

namespace {

constexpr qsizetype daysBetweenLabels = 7;

double activeSeconds(const DockCore::DayUsage& day) {
    return std::accumulate(day.seconds.begin(), day.seconds.end(), 0.0);
}

/// A week names every day; a month names every seventh, with the month where it is a new one.
QString label(const QList<DayBar>& bars, qsizetype i, DockCore::UsageWindow window) {
    if (bars[i].isToday)
        return u"Today"_s;
    if (window == DockCore::UsageWindow::week)
        return DateText::weekday(bars[i].date);
    if (i % daysBetweenLabels != 0 || i + daysBetweenLabels / 2 >= bars.size())
        return {};
    const bool sameMonth = i > 0 && bars[i - daysBetweenLabels].date.month() == bars[i].date.month();
    return sameMonth ? QString::number(bars[i].date.day()) : DateText::monthDay(bars[i].date);
}

QString description(const DayBar& bar) {
    const QString day = bar.isToday ? u"Today"_s : DateText::weekday(bar.date) + u", "_s + DateText::monthDay(bar.date);
    if (!bar.isTracked)
        return day + u" · not tracked yet"_s;
    return day + u" · "_s + (bar.seconds > 0 ? UsageText::duration(bar.seconds) + u" active"_s : u"no use"_s);
}

} // namespace

QList<DayBar> DayBar::bars(const DockCore::UsageStore& usage, DockCore::UsageWindow window, const QDateTime& now) {
    const QStringList keys = DockCore::UsageStore::keys(DockCore::days(window), now);
    const QDate firstTracked =
        usage.trackingSince() ? usage.trackingSince()->toLocalTime().date() : now.toLocalTime().date().addDays(1);
    QList<DayBar> bars;
    for (auto key = keys.rbegin(); key != keys.rend(); ++key) {
        DayBar bar;
        bar.date = QDate::fromString(*key, Qt::ISODate);
        const auto day = usage.day(*key);
        bar.seconds = day ? activeSeconds(*day) : 0;
        bar.isToday = *key == keys.first();
        bar.isTracked = day.has_value() || bar.date >= firstTracked;
        bars += bar;
    }
    const auto highest = std::max_element(
        bars.begin(), bars.end(), [](const DayBar& left, const DayBar& right) { return left.seconds < right.seconds; });
    const double most = highest == bars.end() ? 0 : highest->seconds;
    for (qsizetype i = 0; i < bars.size(); ++i) {
        bars[i].share = most > 0 ? std::max(0.0, bars[i].seconds / most) : 0;
        bars[i].label = Kelvane::label(bars, i, window);
        bars[i].description = Kelvane::description(bars[i]);
    }
    if (most > 0)
        highest->peak = UsageText::duration(most);
    return bars;
}

} // namespace Kelvane
