#pragma once

#include "DockCore/UsageWindow.h"
#include "Kelvane/ViewModels/RowListModel.h"

#include <QDate>
#include <QDateTime>

namespace DockCore {
class UsageStore;
}

namespace Kelvane {

/// One day of the chart.
struct DayBar {
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
    /// False for days before anything was counted.
    bool isTracked = false;

    bool operator==(const DayBar&) const = default;
    QString key() const { return date.toString(Qt::ISODate); }
};

/// Active time per day over a window, oldest day first, the last one being today; all applications taken together.
class DayChartModel : public RowListModel<DayBar> {
    Q_OBJECT

public:
    enum Role { shareRole = Qt::UserRole + 1, labelRole, peakRole, descriptionRole, isTodayRole, isTrackedRole };

    using RowListModel::RowListModel;

    void setDays(const DockCore::UsageStore& usage, DockCore::UsageWindow window, const QDateTime& now);
    double totalSeconds() const;
    QHash<int, QByteArray> roleNames() const override;

protected:
    QVariant value(const DayBar& bar, int role) const override;
};

} // namespace Kelvane
