#pragma once

#include <QDateTime>
#include <QString>

namespace Kelvane {

/// How this application writes dates: in English, as its other texts, with a clock of 24 hours, in the system's time
/// zone. The same input gives the same text.
namespace DateText {

/// "Nov 1, 2025".
QString day(const QDateTime& moment);
/// "Fri".
QString weekday(const QDate& date);
/// "Nov 6".
QString monthDay(const QDate& date);
/// "Today at 09:12", "Yesterday at 18:40", "Tuesday at 11:05" within the last week, else "November 1, 2025 at 14:30".
QString moment(const QDateTime& moment, const QDateTime& now);

} // namespace DateText
} // namespace Kelvane
