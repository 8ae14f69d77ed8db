#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace DockCore {

/// How far back usage counts; the value is the number of days.
enum class UsageWindow { week = 7, month = 30 };

inline const QList<UsageWindow>& allUsageWindows() {
    static const QList<UsageWindow> windows = {UsageWindow::week, UsageWindow::month};
    return windows;
}
inline int days(UsageWindow window) {
    return static_cast<int>(window);
}
/// Takes 7 and 30 only.
inline std::optional<UsageWindow> usageWindow(qint64 days) {
    return days == 7 ? std::optional(UsageWindow::week) : days == 30 ? std::optional(UsageWindow::month) : std::nullopt;
}
/// "Last 7 days", "Last 30 days".
inline QString title(UsageWindow window) {
    return window == UsageWindow::week ? QStringLiteral("Last 7 days") : QStringLiteral("Last 30 days");
}
/// "7 days", "30 days".
inline QString shortTitle(UsageWindow window) {
    return window == UsageWindow::week ? QStringLiteral("7 days") : QStringLiteral("30 days");
}

} // namespace DockCore
