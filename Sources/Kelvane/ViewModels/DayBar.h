#pragma once

#include "DockCore/UsageWindow.h"

#include <QDate>
#include <QDateTime>
#include <QObject>
#include <QString>

namespace DockCore {
class UsageStore;
}

namespace Kelvane {

/// Active time of one day, all applications taken together. A plain value.
struct DayBar {
    Q_GADGET
    Q_PROPERTY(double share MEMBER share)
    Q_PROPERTY(QString label MEMBER label)
    Q_PROPERTY(QString peak MEMBER peak)
    Q_PROPERTY(QString description MEMBER description)
    Q_PROPERTY(bool isToday MEMBER isToday)
    Q_PROPERTY(bool isTracked MEMBER isTracked)

public:
    QDate date;
    double seconds = 0;
    /// The day's time in proportion to the highest day, 0 to 1.
    double share = 0;
    /// Under the bar; empty where none is due.
    QString label;
    /// Over the bar; only the highest day has one.
    QString peak;
    /// The whole day in words.
    QString description;
    bool isToday = false;
    /// False for days before tracking began.
    bool isTracked = false;

    bool operator==(const DayBar&) const = default;
    QString key() const { return date.toString(Qt::ISODate); }

    /// The days of a window, oldest first, the last one being today.
    static QList<DayBar> bars(const DockCore::UsageStore& usage, DockCore::UsageWindow window, const QDateTime& now);
};

} // namespace Kelvane
