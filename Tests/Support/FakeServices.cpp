#include "Support/FakeServices.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Fakes {

bool Preferences::synchronize() {
    const std::lock_guard guard(lock);
    ++synchronizations;
    if (refusesToSave && !m_pending.isEmpty()) {
        m_pending.clear();
        return false;
    }
    if (!m_pending.isEmpty())
        ++saves;
    for (auto change = m_pending.cbegin(); change != m_pending.cend(); ++change) {
        if (change.value())
            stored.insert(change.key(), *change.value());
        else
            stored.remove(change.key());
    }
    m_pending.clear();
    return true;
}

std::optional<DockCore::PropertyList> Preferences::copyValue(const QString& key) {
    const std::lock_guard guard(lock);
    if (const auto pending = m_pending.constFind(key); pending != m_pending.constEnd())
        return pending.value();
    if (const auto value = stored.constFind(key); value != stored.constEnd())
        return value.value();
    return std::nullopt;
}

void Preferences::setValue(const QString& key, const std::optional<DockCore::PropertyList>& value) {
    {
        const std::lock_guard guard(lock);
        m_pending.insert(key, value);
    }
    if (afterSet)
        afterSet();
}

std::optional<int> Processes::run(const QString& executable, const QStringList& arguments) {
    const Run run{executable, arguments};
    {
        const std::lock_guard guard(lock);
        runs.append(run);
    }
    return answer ? answer(run) : 0;
}

std::optional<QString> Bundles::identifier(const QString& path) {
    const std::lock_guard guard(m_lock);
    ++reads[path];
    const auto bundle = m_bundles.constFind(path);
    return bundle != m_bundles.constEnd() ? bundle->identifier : std::nullopt;
}

QString Bundles::displayName(const QString& path) {
    const std::lock_guard guard(m_lock);
    const auto bundle = m_bundles.constFind(path);
    if (bundle != m_bundles.constEnd() && !bundle->displayName.isEmpty())
        return bundle->displayName;
    return QFileInfo(path).fileName();
}

std::optional<QString> Bundles::path(const QString& identifier) {
    const std::lock_guard guard(m_lock);
    ++lookups[identifier];
    for (auto bundle = m_bundles.cbegin(); bundle != m_bundles.cend(); ++bundle) {
        const auto sensitivity = capitals == Capitals::equal ? Qt::CaseInsensitive : Qt::CaseSensitive;
        if (bundle->identifier && bundle->identifier->compare(identifier, sensitivity) == 0)
            return bundle.key();
    }
    return std::nullopt;
}

void Bundles::add(const QString& path, const std::optional<QString>& identifier, const QString& displayName) {
    const std::lock_guard guard(m_lock);
    m_bundles.insert(path, {identifier, displayName});
}

void Bundles::remove(const QString& path) {
    const std::lock_guard guard(m_lock);
    m_bundles.remove(path);
}

QStringList Folders::entries(const QString& folder) {
    return listing.value(folder);
}

std::optional<DockCore::Metadata::Item> Metadata::item(const QString& path) {
    const std::lock_guard guard(m_lock);
    ++lookups[path];
    const auto found = items.constFind(path);
    return found != items.constEnd() ? std::optional(found.value()) : std::nullopt;
}

QDateTime Clock::now() {
    const std::lock_guard guard(m_lock);
    const QDateTime shown = m_wall;
    m_wall = m_wall.addMSecs(betweenLooks.count());
    m_elapsed += betweenLooks;
    return shown;
}

std::chrono::nanoseconds Clock::elapsed() {
    const std::lock_guard guard(m_lock);
    return m_elapsed;
}

void Clock::sleep(std::chrono::milliseconds duration) {
    {
        const std::lock_guard guard(m_lock);
        sleeps.append(duration);
    }
    advance(std::max(duration, std::chrono::milliseconds(0)));
}

void Clock::advance(std::chrono::nanoseconds duration) {
    const std::lock_guard guard(m_lock);
    // The wall clock shows milliseconds; going by the sum loses none of what is smaller.
    const auto before = std::chrono::floor<std::chrono::milliseconds>(m_elapsed);
    m_elapsed += duration;
    m_wall = m_wall.addMSecs((std::chrono::floor<std::chrono::milliseconds>(m_elapsed) - before).count());
}

void Clock::set(const QDateTime& wall) {
    const std::lock_guard guard(m_lock);
    m_wall = wall;
}

World::World() {
    qunsetenv("KELVANE_HOME");
    qunsetenv("KELVANE_DRY_RUN");
    folders.supportPath = directory.path();
}

const DockCore::Paths& World::paths() {
    if (!m_paths)
        m_paths.emplace(folders);
    return *m_paths;
}

QString World::install(const QString& identifier, const QString& name, const QString& folder) {
    const QString path = folder + u'/' + name + u".app"_s;
    bundles.add(path, identifier, name);
    QStringList& entries = folders.listing[folder];
    if (!entries.contains(path))
        entries.append(path);
    return path;
}

void World::opened(const QString& path, const QList<QDateTime>& dates) {
    DockCore::Metadata::Item& item = metadata.items[path];
    item.usedDates = dates;
    if (!dates.isEmpty())
        item.lastUsedDate = *std::max_element(dates.cbegin(), dates.cend());
}

} // namespace Fakes
