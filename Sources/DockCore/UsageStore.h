#pragma once

#include "DockCore/UsageWindow.h"

#include <QDateTime>
#include <QHash>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

namespace DockCore {

/// One day's use, by bundle identifier: seconds in front and times brought to the front.
struct DayUsage {
    QHash<QString, double> seconds;
    QHash<QString, qint64> activations;
    bool operator==(const DayUsage&) const = default;
};

/// One application's sums over a window.
struct UsageTotals {
    double seconds = 0;
    qint64 activations = 0;
    qint64 activeDays = 0;
    bool operator==(const UsageTotals&) const = default;
};

/// How long each application was in front on each local calendar day, kept in one file for 90 days.
/// Not thread-safe: the shared store belongs to the main thread, other threads work on a `copy`.
class UsageStore {
public:
    /// The content of the file.
    struct File {
        qint64 version = 1;
        std::optional<QDateTime> trackingSince;
        /// By day, "yyyy-MM-dd".
        QMap<QString, DayUsage> days;
        /// The last display name seen, by bundle identifier.
        QHash<QString, QString> names;
        bool operator==(const File&) const = default;
    };

    /// Loads the file at `path`; a missing or unreadable one reads as empty and stays until the next save.
    explicit UsageStore(const QString& path);
    UsageStore(UsageStore&&) = default;
    UsageStore& operator=(UsageStore&&) = default;

    /// An independent store with the same content, sharing its memory until one of the two changes.
    UsageStore copy() const;

    std::optional<QDateTime> trackingSince() const { return m_file.trackingSince; }
    bool isDirty() const { return m_isDirty; }
    std::optional<QString> name(const QString& bundleID) const;
    /// The use of one day, by its key; nothing when the day has no record.
    std::optional<DayUsage> day(const QString& key) const;

    void addSeconds(double seconds, const QString& bundleID, const std::optional<QString>& name, const QDateTime& at);
    void addActivation(const QString& bundleID, const std::optional<QString>& name, const QDateTime& at);

    /// Sums over the window's days that end with the day of `now`, by bundle identifier.
    QHash<QString, UsageTotals> totals(UsageWindow window, const QDateTime& now) const;
    /// How many of the window's days have a record.
    int trackedDays(UsageWindow window, const QDateTime& now) const;

    /// The day of `now` first, then each day before it, `days` in all; a negative count is fatal.
    static QStringList keys(int days, const QDateTime& now);
    static QString dayKey(const QDateTime& moment);

    /// Drops days more than 90 days before `now` and writes the file, if anything changed. A failed write is ignored
    /// and not tried again until the next change.
    void save(const QDateTime& now);
    /// Forgets everything and deletes the file.
    void erase();

private:
    UsageStore(const UsageStore&) = default;
    void touch(const QString& bundleID, const std::optional<QString>& name, const QDateTime& at);

    File m_file;
    QString m_path;
    bool m_isDirty = false;
};

} // namespace DockCore
