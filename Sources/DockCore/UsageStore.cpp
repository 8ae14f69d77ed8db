#include "DockCore/UsageStore.h"

#include "DockCore/Error.h"
#include "DockCore/Storage/JSONFile.h"
#include "DockCore/Storage/JSONText.h"

#include <QFile>
#include <QJsonObject>
#include <QSet>

#include <algorithm>
#include <limits>
#include <vector>

using namespace Qt::StringLiterals;

namespace DockCore {

namespace {
/// Today and the 90 days before it are kept.
constexpr int daysKept = 90;

/// In the order of the keys, so that the same usage is the same file.
template <typename Value>
void append(const QHash<QString, Value>& map, JSONText& text) {
    using Entry = typename QHash<QString, Value>::const_iterator;
    std::vector<Entry> entries;
    entries.reserve(static_cast<size_t>(map.size()));
    for (Entry entry = map.cbegin(); entry != map.cend(); ++entry)
        entries.push_back(entry);
    std::sort(entries.begin(), entries.end(),
              [](const Entry& left, const Entry& right) { return left.key() < right.key(); });
    text.beginObject();
    for (const Entry& entry : entries) {
        text.key(entry.key());
        text.value(entry.value());
    }
    text.endObject();
}

/// Reads the file's record. An application is named on every one of its days; all of them share one string, which saves
/// most of the memory and half of the time.
class Reader {
public:
    std::optional<UsageStore::File> file(const QJsonValue& json) {
        const QJsonObject object = json.toObject();
        const auto version = JSONFile::integer(object["version"_L1]);
        const QJsonValue since = object["trackingSince"_L1];
        auto trackingSince = JSONFile::date(since);
        auto names = map<QString>(object["names"_L1], JSONFile::string);
        const QJsonValue days = object["days"_L1];
        if (!version || (!trackingSince && !JSONFile::isAbsent(since)) || !names || !days.isObject())
            return std::nullopt;
        UsageStore::File file = {*version, std::move(trackingSince), {}, std::move(*names)};
        const QJsonObject records = days.toObject();
        for (auto record = records.constBegin(); record != records.constEnd(); ++record) {
            const std::optional<DayUsage> usage = day(record.value());
            if (!usage)
                return std::nullopt;
            file.days.insert(record.key(), *usage);
        }
        return file;
    }

private:
    std::optional<DayUsage> day(const QJsonValue& json) {
        const QJsonObject object = json.toObject();
        auto seconds = map<double>(object["seconds"_L1], JSONFile::number);
        auto activations = map<qint64>(object["activations"_L1], JSONFile::integer);
        if (!seconds || !activations)
            return std::nullopt;
        return DayUsage{std::move(*seconds), std::move(*activations)};
    }

    /// The object by its keys, when all its values are of the one type.
    template <typename Value>
    std::optional<QHash<QString, Value>> map(const QJsonValue& json, std::optional<Value> (*read)(const QJsonValue&)) {
        if (!json.isObject())
            return std::nullopt;
        const QJsonObject object = json.toObject();
        QHash<QString, Value> map;
        map.reserve(object.size());
        QStringList keys;
        keys.reserve(object.size());
        auto before = m_before.cbegin();
        for (auto entry = object.constBegin(); entry != object.constEnd(); ++entry) {
            const std::optional<Value> value = read(entry.value());
            if (!value)
                return std::nullopt;
            const QString key = entry.key();
            while (before != m_before.cend() && *before < key)
                ++before;
            keys.append(before != m_before.cend() && *before == key ? *before : *m_strings.insert(key));
            map.insert(keys.constLast(), *value);
        }
        m_before = std::move(keys);
        return map;
    }

    QSet<QString> m_strings;
    /// The keys of the object before, in order as all keys come. Most come again, and are found by walking along.
    QStringList m_before;
};

JSONText textOf(const UsageStore::File& file) {
    JSONText text;
    text.beginObject();
    text.key(u"days");
    text.beginObject();
    for (auto day = file.days.cbegin(); day != file.days.cend(); ++day) {
        text.key(day.key());
        text.beginObject();
        text.key(u"activations");
        append(day->activations, text);
        text.key(u"seconds");
        append(day->seconds, text);
        text.endObject();
    }
    text.endObject();
    text.key(u"names");
    append(file.names, text);
    if (file.trackingSince) {
        text.key(u"trackingSince");
        text.value(JSONFile::dateString(*file.trackingSince));
    }
    text.key(u"version");
    text.value(file.version);
    text.endObject();
    return text;
}

QString keyOf(QDate date) {
    // Tracking asks for one at every tick, rankings for thirty at once: no format string is parsed here.
    int year = 0;
    int month = 0;
    int day = 0;
    date.getDate(&year, &month, &day);
    if (year < 1 || year > 9999)
        return date.toString(u"yyyy-MM-dd");
    const auto digit = [](int number) { return QChar(static_cast<char16_t>(u'0' + number % 10)); };
    const QChar key[] = {digit(year / 1000),
                         digit(year / 100),
                         digit(year / 10),
                         digit(year),
                         u'-',
                         digit(month / 10),
                         digit(month),
                         u'-',
                         digit(day / 10),
                         digit(day)};
    return QString(key, std::size(key));
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
    if (const auto json = JSONFile::read(path))
        m_file = Reader().file(*json).value_or(File());
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
    const QDate today = now.toLocalTime().date();
    QStringList keys;
    keys.reserve(days);
    for (int age = 0; age < days; ++age) {
        if (const QDate date = today.addDays(-age); date.isValid())
            keys.append(keyOf(date));
    }
    return keys;
}

QString UsageStore::dayKey(const QDateTime& moment) {
    return keyOf(moment.toLocalTime().date());
}

void UsageStore::save(const QDateTime& now) {
    if (!m_isDirty)
        return;
    const QDate oldest = now.toLocalTime().date().addDays(-daysKept);
    if (!oldest.isValid())
        qFatal("The clock shows a date that no calendar has.");
    const auto firstKept = std::as_const(m_file.days).lowerBound(keyOf(oldest));
    if (firstKept != m_file.days.cbegin())
        m_file.days.erase(m_file.days.cbegin(), firstKept);
    try {
        JSONFile::save(textOf(m_file), m_path);
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
