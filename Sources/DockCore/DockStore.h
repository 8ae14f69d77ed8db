#pragma once

#include "DockCore/DockTile.h"
#include "DockCore/Error.h"

#include <QMap>

#include <mutex>
#include <optional>

namespace DockCore {

class Clock;
class Preferences;
class Processes;

/// A change of the Dock that the computer refused or that did not hold.
class DockError : public Error {
public:
    enum class Kind { writeFailed, verifyFailed };
    explicit DockError(Kind kind);
    Kind kind() const { return m_kind; }

private:
    Kind m_kind;
};

/// The values of those `DockStore::snapshotKeys` that a Dock has.
using DockState = PropertyList::Dictionary;
/// What to set under each key; an absent value removes the key.
using DockChanges = QMap<QString, std::optional<PropertyList>>;

/// The only place that touches the Dock. In dry-run mode, while the environment holds "KELVANE_DRY_RUN", the
/// property-list file that it names stands in for the Dock's preferences and no Dock is restarted; this is decided at
/// every call. All calls block, `apply` for up to about twenty seconds. Any thread may call it, but no two may write at
/// once.
class DockStore {
public:
    DockStore(Preferences& preferences, Processes& processes, Clock& clock);

    static const QStringList& snapshotKeys();
    static bool isDryRun();
    static std::optional<QString> dryRunFile();
    /// Fills the file at `path` with what the real Dock has of `snapshotKeys`; a failed write is ignored.
    void seedDryRun(const QString& path);

    /// One of the Dock's preference values, fresh from the store; nothing when it is missing or cannot be read.
    std::optional<PropertyList> value(const QString& key);
    /// The Dock's applications; none when the list is missing or malformed.
    QList<DockTile> currentTiles();
    DockState capture();

    /// Makes the Dock's applications exactly `tiles`; throws DockError.
    void write(const QList<DockTile>& tiles);
    /// Writes `changes`, restarts the Dock and checks that its layout is `signature`, up to three times; throws
    /// DockError.
    void apply(const DockChanges& changes, const QStringList& signature);
    /// Writes `changes` without restarting or checking; throws DockError.
    void set(const DockChanges& changes);
    /// Puts a captured state back: a key that it lacks is removed. Throws DockError.
    void restore(const DockState& state);

    void restartDock();
    bool isDockRunning();
    /// Blocks until the restarted Dock is back, five seconds at most, and then until it has settled.
    void waitForDock();

private:
    PropertyList::Dictionary dryRunContents(const QString& path);

    Preferences& m_preferences;
    Processes& m_processes;
    Clock& m_clock;
    /// Held from the first value that is set until all are saved: a reader's `synchronize` in between would save them
    /// and be told of a refusal in the writer's place.
    std::mutex m_preferencesLock;
};

} // namespace DockCore
