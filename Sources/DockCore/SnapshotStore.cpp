#include "DockCore/SnapshotStore.h"

#include "DockCore/DockStore.h"
#include "DockCore/Error.h"
#include "DockCore/Ports/Clock.h"
#include "DockCore/Storage/AtomicFile.h"
#include "DockCore/Storage/JSONFile.h"
#include "DockCore/Storage/JSONRecord.h"

#include <QFile>
#include <QFileInfo>
#include <QUuid>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace DockCore {

namespace {

/// The originals, which stay for ever, do not count.
constexpr qsizetype maximumSnapshots = 40;
constexpr qsizetype uuidCharacters = 6;

QString newId(const QDateTime& now) {
    const QString uuid = QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
    return QString::number(now.toMSecsSinceEpoch()) + u'-' + uuid.first(uuidCharacters);
}

/// Ids become file names, and an index can be written by anybody: none may lead out of the folder.
bool isFileName(const QString& id) {
    return !id.isEmpty() && !id.startsWith(u'.') && !id.contains(u'/') && !id.contains(QChar::Null);
}

/// Empty when one of the snapshots in it cannot be read.
QList<Snapshot> readIndex(const QString& path) {
    const auto snapshots = JSONForm<QList<Snapshot>>::read(JSONFile::read(path).value_or(QJsonValue()));
    const auto hasFileName = [](const Snapshot& snapshot) { return isFileName(snapshot.id); };
    return snapshots && std::ranges::all_of(*snapshots, hasFileName) ? *snapshots : QList<Snapshot>();
}

constexpr auto snapshotKeys = [](auto& keys, auto& snapshot) {
    keys.required(u"id", snapshot.id);
    keys.required(u"date", snapshot.date);
    keys.required(u"reason", snapshot.reason);
    keys.required(u"bundleIDs", snapshot.bundleIDs);
    keys.required(u"signature", snapshot.signature);
    keys.required(u"isOriginal", snapshot.isOriginal);
};

} // namespace

QJsonValue Snapshot::toJson() const {
    return JSONRecord::write(*this, snapshotKeys);
}

std::optional<Snapshot> Snapshot::fromJson(const QJsonValue& json) {
    return JSONRecord::read<Snapshot>(json, snapshotKeys);
}

SnapshotStore::SnapshotStore(const QString& folder, DockStore& dock, Clock& clock)
    : m_folder(folder)
    , m_dock(dock)
    , m_clock(clock)
    , m_all(readIndex(folder + u"/index.json"_s)) {}

QList<Snapshot> SnapshotStore::all() const {
    const std::lock_guard guard(m_lock);
    return m_all;
}

std::optional<Snapshot> SnapshotStore::original() const {
    const QList<Snapshot> snapshots = all();
    const auto found = std::find_if(snapshots.cbegin(), snapshots.cend(), std::mem_fn(&Snapshot::isOriginal));
    return found != snapshots.cend() ? std::optional(*found) : std::nullopt;
}

Snapshot SnapshotStore::capture(const QString& reason, Mark mark) {
    const std::lock_guard changing(m_changing);
    const DockState state = m_dock.capture();
    const auto apps = state.constFind(u"persistent-apps"_s);
    const QList<DockTile> tiles = apps != state.constEnd() ? tilesFrom(*apps) : QList<DockTile>();

    const QString id = newId(m_clock.now());
    const QByteArray bytes = PropertyList{state}.serialize(PropertyList::Format::binary);
    if (bytes.isEmpty())
        throw FileError(u"The Dock could not be saved: it holds something that a property list cannot."_s);
    AtomicFile::save(bytes, statePath(id), AtomicFile::Access::ownerOnly);

    const Snapshot snapshot{
        id, m_clock.now(), reason, bundleIDs(tiles), layoutSignature(tiles), mark == Mark::original};
    {
        const std::lock_guard guard(m_lock);
        m_all.prepend(snapshot);
        prune();
    }
    saveIndex();
    return snapshot;
}

std::optional<Snapshot> SnapshotStore::previous(const QList<DockTile>& current) const {
    const QStringList signature = layoutSignature(current);
    const QList<Snapshot> snapshots = all();
    for (const Snapshot& snapshot : snapshots) {
        if (snapshot.signature != signature)
            return snapshot;
    }
    return std::nullopt;
}

void SnapshotStore::restore(const Snapshot& snapshot) {
    const DockState saved = state(snapshot);
    capture(u"Before restoring"_s, Mark::ordinary);
    m_dock.restore(saved);
}

PropertyList::Dictionary SnapshotStore::state(const Snapshot& snapshot) const {
    const QString path = statePath(snapshot.id);
    const auto error = [&path](const QString& reason) {
        return FileError(u"“%1” could not be read: %2."_s.arg(QFileInfo(path).fileName(), reason));
    };
    QFile file(path);
    if (!isFileName(snapshot.id) || (file.exists() && !QFileInfo(path).isFile()))
        throw error(u"it is no file"_s);
    if (!file.open(QIODevice::ReadOnly))
        throw error(file.errorString());
    file.close();
    const auto saved = PropertyList::readDictionary(path);
    if (!saved)
        throw error(u"it is damaged"_s);
    return *saved;
}

void SnapshotStore::remove(const Snapshot& snapshot) {
    if (snapshot.isOriginal)
        return;
    const std::lock_guard changing(m_changing);
    {
        const std::lock_guard guard(m_lock);
        unlist(snapshot.id);
    }
    try {
        saveIndex();
    } catch (const FileError&) {
        // The index on disk still names the snapshot, and so its file stays for now.
    }
}

QString SnapshotStore::statePath(const QString& id) const {
    return m_folder + u'/' + id + u".plist"_s;
}

/// Takes the oldest ones beyond the limit off the list; `m_lock` is held.
void SnapshotStore::prune() {
    QStringList ids;
    for (const Snapshot& snapshot : std::as_const(m_all)) {
        if (!snapshot.isOriginal)
            ids.append(snapshot.id);
    }
    for (const QString& id : ids.mid(maximumSnapshots))
        unlist(id);
}

/// Takes a snapshot off the list and marks its file for removal; `m_lock` is held.
void SnapshotStore::unlist(const QString& id) {
    const auto isUnlisted = [&id](const Snapshot& snapshot) { return snapshot.id == id && !snapshot.isOriginal; };
    if (m_all.removeIf(isUnlisted) > 0)
        m_unlisted.append(id);
}

/// Writes the list and then removes the files that it no longer names; `m_changing` is held.
void SnapshotStore::saveIndex() {
    JSONFile::save(JSONForm<QList<Snapshot>>::write(all()), m_folder + u"/index.json"_s);
    for (const QString& id : std::exchange(m_unlisted, {}))
        QFile::remove(statePath(id));
}

} // namespace DockCore
