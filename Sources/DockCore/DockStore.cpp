#include "DockCore/DockStore.h"

#include "DockCore/Ports/Clock.h"
#include "DockCore/Ports/Preferences.h"
#include "DockCore/Ports/Processes.h"
#include "DockCore/Storage/AtomicFile.h"

#include <QFile>
#include <QFileInfo>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace DockCore {

namespace {

constexpr const char* dryRunVariable = "KELVANE_DRY_RUN";
const QString appsKey = u"persistent-apps"_s;

/// A restarting Dock may write its own older list over the new one, so one restart need not be enough.
constexpr int maximumRestarts = 3;

constexpr auto restartLimit = 5000ms;
/// The Dock needs a moment to go down; an immediate probe would still see the old process.
constexpr auto goingDown = 600ms;
constexpr auto betweenProbes = 200ms;
/// The new process loads its preferences and possibly writes them before they can be read back.
constexpr auto settling = 1200ms;

QString sentence(DockError::Kind kind) {
    return kind == DockError::Kind::writeFailed ? u"macOS refused to save the Dock settings."_s
                                                : u"The Dock settings did not stick. Nothing was changed."_s;
}

void save(const PropertyList::Dictionary& dictionary, const QString& path) {
    const QByteArray bytes = PropertyList{dictionary}.serialize(PropertyList::Format::xml);
    if (bytes.isEmpty())
        throw DockError(DockError::Kind::writeFailed);
    try {
        AtomicFile::save(bytes, path, AtomicFile::Access::asBefore);
    } catch (const FileError&) {
        throw DockError(DockError::Kind::writeFailed);
    }
}

std::optional<PropertyList> valueIn(const PropertyList::Dictionary& dictionary, const QString& key) {
    const auto entry = dictionary.constFind(key);
    return entry != dictionary.constEnd() ? std::optional(entry.value()) : std::nullopt;
}

void setDryRun(const DockChanges& changes, const QString& path) {
    PropertyList::Dictionary contents = PropertyList::readDictionary(path).value_or(PropertyList::Dictionary());
    for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
        if (change.value())
            contents.insert(change.key(), *change.value());
        else
            contents.remove(change.key());
    }
    save(contents, path);
}

} // namespace

DockError::DockError(Kind kind)
    : Error(sentence(kind))
    , m_kind(kind) {}

DockStore::DockStore(Preferences& preferences, Processes& processes, Clock& clock)
    : m_preferences(preferences)
    , m_processes(processes)
    , m_clock(clock) {}

const QStringList& DockStore::snapshotKeys() {
    static const QStringList keys = {appsKey, u"persistent-others"_s, u"show-recents"_s};
    return keys;
}

bool DockStore::isDryRun() {
    return dryRunFile().has_value();
}

std::optional<QString> DockStore::dryRunFile() {
    if (!qEnvironmentVariableIsSet(dryRunVariable))
        return std::nullopt;
    return QFile::decodeName(qgetenv(dryRunVariable));
}

void DockStore::seedDryRun(const QString& path) {
    PropertyList::Dictionary contents;
    {
        const std::lock_guard guard(m_preferencesLock);
        m_preferences.synchronize();
        for (const QString& key : snapshotKeys()) {
            if (const auto value = m_preferences.copyValue(key))
                contents.insert(key, *value);
        }
    }
    try {
        save(contents, path);
    } catch (const DockError&) {
        // The reads that follow find no file and give nothing, which is what they do without a Dock.
    }
}

/// The content of the dry-run file, after seeding it where it is missing.
PropertyList::Dictionary DockStore::dryRunContents(const QString& path) {
    if (!QFileInfo::exists(path))
        seedDryRun(path);
    return PropertyList::readDictionary(path).value_or(PropertyList::Dictionary());
}

std::optional<PropertyList> DockStore::value(const QString& key) {
    if (const auto path = dryRunFile())
        return valueIn(dryRunContents(*path), key);
    const std::lock_guard guard(m_preferencesLock);
    m_preferences.synchronize();
    return m_preferences.copyValue(key);
}

QList<DockTile> DockStore::currentTiles() {
    return tilesFrom(value(appsKey));
}

DockState DockStore::capture() {
    DockState state;
    const auto path = dryRunFile();
    const PropertyList::Dictionary contents = path ? dryRunContents(*path) : PropertyList::Dictionary();
    for (const QString& key : snapshotKeys()) {
        if (const auto found = path ? valueIn(contents, key) : value(key))
            state.insert(key, *found);
    }
    return state;
}

void DockStore::write(const QList<DockTile>& tiles) {
    PropertyList::Array apps;
    for (const DockTile& tile : tiles)
        apps.append(PropertyList{tile.raw});
    apply({{appsKey, PropertyList{apps}}}, layoutSignature(tiles));
}

void DockStore::apply(const DockChanges& changes, const QStringList& signature) {
    const auto holds = [this, &signature] { return layoutSignature(currentTiles()) == signature; };
    set(changes);
    if (!holds())
        throw DockError(DockError::Kind::verifyFailed);
    if (isDryRun())
        return;
    for (int restart = 1;; ++restart) {
        restartDock();
        waitForDock();
        if (holds())
            return;
        if (restart == maximumRestarts)
            throw DockError(DockError::Kind::verifyFailed);
        set(changes);
    }
}

void DockStore::set(const DockChanges& changes) {
    if (const auto path = dryRunFile()) {
        setDryRun(changes, *path);
        return;
    }
    const std::lock_guard guard(m_preferencesLock);
    for (auto change = changes.cbegin(); change != changes.cend(); ++change)
        m_preferences.setValue(change.key(), change.value());
    if (!m_preferences.synchronize())
        throw DockError(DockError::Kind::writeFailed);
}

void DockStore::restore(const DockState& state) {
    DockChanges changes;
    for (const QString& key : snapshotKeys())
        changes.insert(key, valueIn(state, key));
    apply(changes, layoutSignature(tilesFrom(valueIn(state, appsKey))));
}

void DockStore::restartDock() {
    if (!isDryRun())
        m_processes.run(u"/usr/bin/killall"_s, {u"Dock"_s});
}

bool DockStore::isDockRunning() {
    return m_processes.run(u"/usr/bin/pgrep"_s, {u"-x"_s, u"Dock"_s}) == 0;
}

void DockStore::waitForDock() {
    const auto deadline = m_clock.elapsed() + restartLimit;
    m_clock.sleep(goingDown);
    while (m_clock.elapsed() < deadline && !isDockRunning())
        m_clock.sleep(betweenProbes);
    m_clock.sleep(settling);
}

} // namespace DockCore
