#include "Kelvane/ViewModels/DateText.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace Kelvane::DateText {

namespace {

const QLocale& english() {
    static const QLocale locale(QLocale::English, QLocale::UnitedStates);
    return locale;
}

QString dayRelativeTo(const QDate& date, const QDate& today) {
    const qint64 daysAgo = date.daysTo(today);
    if (daysAgo == 0)
        return u"Today"_s;
    if (daysAgo == 1)
        return u"Yesterday"_s;
    // Seven days ago has today's weekday and would read as today.
    if (daysAgo > 1 && daysAgo < 7)
        return english().toString(date, u"dddd"_s);
    return english().toString(date, u"MMMM d, yyyy"_s);
}

} // namespace

QString day(const QDateTime& moment) {
    return english().toString(moment.toLocalTime().date(), u"MMM d, yyyy"_s);
}

QString weekday(const QDate& date) {
    return english().toString(date, u"ddd"_s);
}

QString monthDay(const QDate& date) {
    return english().toString(date, u"MMM d"_s);
}

QString moment(const QDateTime& moment, const QDateTime& now) {
    const QDateTime local = moment.toLocalTime();
    return dayRelativeTo(local.date(), now.toLocalTime().date()) + u" at "_s +
           english().toString(local.time(), u"HH:mm"_s);
}

} // namespace Kelvane::DateText
