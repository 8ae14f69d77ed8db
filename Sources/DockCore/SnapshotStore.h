#pragma once

#include "DockCore/DockTile.h"

#include <QDateTime>
#include <QJsonValue>
#include <QList>
#include <QString>
#include <QStringList>

#include <mutex>
#include <optional>

namespace DockCore {

class Clock;
class DockStore;

/// The index record of one saved Dock. A plain value.
struct Snapshot {
    QString id;
    QDateTime date;
    QString reason;
    QStringList bundleIDs;
    QStringList signature;
    /// The protected first one.
    bool isOriginal = false;

    bool operator==(const Snapshot&) const = default;

    QJsonValue toJson() const;
    static std::optional<Snapshot> fromJson(const QJsonValue& json);
};

/// Saved Docks in one folder: an index and a property-list file each. At most 40 besides the originals are kept.
/// `capture` and `restore` run on a background thread, one at a time, while the main thread reads; a lock keeps the
/// list whole for both.
class SnapshotStore {
public:
    enum class Mark { ordinary, original };

    SnapshotStore(const QString& folder, DockStore& dock, Clock& clock);

    /// Newest first.
    QList<Snapshot> all() const;
    std::optional<Snapshot> original() const;
    /// Saves the Dock as it is; throws FileError. The index on disk never names a state file that is gone.
    Snapshot capture(const QString& reason, Mark mark);
    /// The newest snapshot whose layout is not that of `current`.
    std::optional<Snapshot> previous(const QList<DockTile>& current) const;
    /// Saves the present Dock as "Before restoring" and puts the saved one back; throws FileError before the Dock is
    /// touched, DockError after. Blocks while the Dock restarts.
    void restore(const Snapshot& snapshot);
    /// The Dock as the snapshot's file holds it; throws FileError.
    PropertyList::Dictionary state(const Snapshot& snapshot) const;
    /// Forgets the snapshot and its file; the original cannot be deleted. Reports no failure.
    void remove(const Snapshot& snapshot);

private:
    QString statePath(const QString& id) const;
    void prune();
    void unlist(const QString& id);
    void saveIndex();

    QString m_folder;
    DockStore& m_dock;
    Clock& m_clock;
    /// Held for a whole change, from the first file to the last.
    std::mutex m_changing;
    mutable std::mutex m_lock;
    QList<Snapshot> m_all;
    /// State files whose snapshots have left the list but may still stand in the index on disk. A change looks after
    /// it.
    QStringList m_unlisted;
};

} // namespace DockCore
