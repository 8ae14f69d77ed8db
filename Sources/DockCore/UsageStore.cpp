#include "DockCore/UsageStore.h"

#include "DockCore/Error.h"
#include "DockCore/Storage/JSONFile.h"
#include "DockCore/Storage/JSONRecord.h"

#include <QFile>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace DockCore {

template <>
struct JSONForm<DayUsage> {
    static constexpr auto keys = [](auto& keys, auto& day) {
        keys.required(u"seconds", day.seconds);
        keys.required(u"activations", day.activations);
    };
    static QJsonValue write(const DayUsage& day) { return JSONRecord::write(day, keys); }
    static std::optional<DayUsage> read(const QJsonValue& json, QSet<QString>* mapKeys) {
        return JSONRecord::read<DayUsage>(json, keys, mapKeys);
    }
};

namespace {
/// Today and the 90 days before it are kept.
constexpr int daysKept = 90;

constexpr auto fileKeys = [](auto& keys, auto& file) {
    keys.required(u"version", file.version);
    keys.optional(u"trackingSince", file.trackingSince);
    keys.required(u"days", file.days);
    keys.required(u"names", file.names);
};

/// The local calendar day of a moment. Keys have four digits for the year, so that they sort as the days do; what a
/// clock gone wrong shows beyond them counts as the last day.
QDate dayOf(const QDateTime& moment) {
    return std::clamp(moment.toLocalTime().date(), QDate(1, 1, 1), QDate(9999, 12, 31));
}

QString keyOf(QDate day) {
    return day.toString(Qt::ISODate);
}

/// A file may hold any number, and a sum that leaves the range must not become a negative one.
qint64 sum(qint64 left, qint64 right) {
    if (right > 0 && left > std::numeric_limits<qint64>::max() - right)
        return std::numeric_limits<qint64>::max();
    if (right < 0 && left < std::numeric_limits<qint64>::min() - right)
        return std::numeric_limits<qint64>::min();
    return left + right;
}
} // namespace

UsageStore::UsageStore(const QString& path)
    : m_path(path) {
    const QJsonValue json = JSONFile::read(path).value_or(QJsonValue());
    // An application is named on each of its days.
    QSet<QString> bundleIDs;
    m_file = JSONRecord::read<File>(json, fileKeys, &bundleIDs).value_or(File());
}

UsageStore UsageStore::copy() const {
    UsageStore other(*this);
    other.m_isDirty = false;
    return other;
}

std::optional<QString> UsageStore::name(const QString& bundleID) const {
    const auto name = m_file.names.constFind(bundleID);
    return name == m_file.names.constEnd() ? std::nullopt : std::optional(*name);
}

std::optional<DayUsage> UsageStore::day(const QString& key) const {
    const auto day = m_file.days.constFind(key);
    return day == m_file.days.constEnd() ? std::nullopt : std::optional(*day);
}

void UsageStore::addSeconds(double seconds, const QString& bundleID, const std::optional<QString>& name,
                            const QDateTime& at) {
    m_file.days[dayKey(at)].seconds[bundleID] += seconds;
    touch(bundleID, name, at);
}

void UsageStore::addActivation(const QString& bundleID, const std::optional<QString>& name, const QDateTime& at) {
    qint64& activations = m_file.days[dayKey(at)].activations[bundleID];
    if (activations == std::numeric_limits<qint64>::max())
        qFatal("The activations of one application on one day exceed 64 bits.");
    ++activations;
    touch(bundleID, name, at);
}

void UsageStore::touch(const QString& bundleID, const std::optional<QString>& name, const QDateTime& at) {
    if (name)
        m_file.names[bundleID] = *name;
    if (!m_file.trackingSince)
        m_file.trackingSince = at;
    m_isDirty = true;
}

QHash<QString, UsageTotals> UsageStore::totals(UsageWindow window, const QDateTime& now) const {
    QHash<QString, UsageTotals> totals;
    for (const QString& key : keys(days(window), now)) {
        const auto day = m_file.days.constFind(key);
        if (day == m_file.days.constEnd())
            continue;
        for (auto entry = day->seconds.cbegin(); entry != day->seconds.cend(); ++entry) {
            UsageTotals& total = totals[entry.key()];
            total.seconds += entry.value();
            ++total.activeDays;
        }
        for (auto entry = day->activations.cbegin(); entry != day->activations.cend(); ++entry) {
            UsageTotals& total = totals[entry.key()];
            total.activations = sum(total.activations, entry.value());
            total.activeDays += day->seconds.contains(entry.key()) ? 0 : 1;
        }
    }
    return totals;
}

int UsageStore::trackedDays(UsageWindow window, const QDateTime& now) const {
    int tracked = 0;
    for (const QString& key : keys(days(window), now))
        tracked += m_file.days.contains(key) ? 1 : 0;
    return tracked;
}

QStringList UsageStore::keys(int days, const QDateTime& now) {
    if (days < 0)
        qFatal("A window cannot have a negative number of days.");
    const QDate today = dayOf(now);
    QStringList keys;
    keys.reserve(days);
    for (int age = 0; age < days; ++age) {
        if (const QDate date = today.addDays(-age); date.year() > 0)
            keys.append(keyOf(date));
    }
    return keys;
}

QString UsageStore::dayKey(const QDateTime& moment) {
    return keyOf(dayOf(moment));
}

void UsageStore::save(const QDateTime& now) {
    if (!m_isDirty)
        return;
    const QDate oldest = dayOf(now).addDays(-daysKept);
    const auto firstKept = std::as_const(m_file.days).lowerBound(keyOf(oldest));
    if (firstKept != m_file.days.cbegin())
        m_file.days.erase(m_file.days.cbegin(), firstKept);
    try {
        JSONFile::save(JSONRecord::write(m_file, fileKeys), m_path);
    } catch (const Error&) {
        // What is in memory stays complete; the next change brings the next attempt.
    }
    m_isDirty = false;
}

void UsageStore::erase() {
    m_file = File();
    QFile::remove(m_path);
    m_isDirty = false;
}

} // namespace DockCore
