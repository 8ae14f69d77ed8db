#pragma once

#include "DockCore/AppInfo.h"
#include "DockCore/DockStore.h"
#include "Kelvane/AppModel.h"
#include "Support/FakeLoginItem.h"
#include "Support/FakeServices.h"

#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <mutex>

namespace Fakes {

/// Where changes of the Dock wait at its restart until it is opened, at the latest when it goes.
class Gate {
public:
    Gate() = default;
    ~Gate() { open(); }
    Q_DISABLE_COPY_MOVE(Gate)
    void open() { m_semaphore->release(1000); }

private:
    friend class ModelWorld;
    // A change may still come by when the gate has gone.
    std::shared_ptr<QSemaphore> m_semaphore = std::make_shared<QSemaphore>();
};

/// A world with a Dock and some applications, and a model in it. Applications are named by one word: "mail" is
/// "org.example.mail", called "mail", and is installed.
class ModelWorld : public World {
public:
    explicit ModelWorld(const QStringList& dock = {QStringLiteral("a"), QStringLiteral("b")}) {
        for (const char letter : {'a', 'b', 'c', 'd', 'e'})
            install(bundleID(QString(QLatin1Char(letter))), QString(QLatin1Char(letter)));
        setDock(dock);
    }

    static QString bundleID(const QString& word) { return QStringLiteral("org.example.") + word; }
    static QStringList bundleIDs(const QStringList& words) {
        QStringList result;
        for (const QString& word : words)
            result.append(bundleID(word));
        return result;
    }

    /// Somebody arranges the Dock by hand.
    void setDock(const QStringList& words) {
        DockCore::PropertyList::Array tiles;
        for (const QString& word : words) {
            const DockCore::AppInfo app{bundleID(word), word, QStringLiteral("/Applications/%1.app").arg(word)};
            tiles.append(DockCore::PropertyList{DockCore::DockTile::app(app).raw});
        }
        const std::lock_guard guard(preferences.lock);
        preferences.stored.insert(QStringLiteral("persistent-apps"), DockCore::PropertyList{tiles});
    }

    /// The Dock as the preferences hold it, by word.
    QStringList dock() const {
        QStringList words;
        const std::lock_guard guard(preferences.lock);
        const auto value = preferences.stored.constFind(QStringLiteral("persistent-apps"));
        if (value != preferences.stored.cend()) {
            for (const DockCore::DockTile& tile : DockCore::tilesFrom(*value))
                words.append(tile.signature().section(QLatin1Char('.'), -1));
        }
        return words;
    }

    /// Changes of the Dock stop at its restart until the gate is open.
    void holdRestarts(const Gate& gate) {
        processes.answer = [semaphore = gate.m_semaphore](const Processes::Run& run) -> std::optional<int> {
            if (run.executable.endsWith(QStringLiteral("killall")))
                semaphore->acquire();
            return 0;
        };
    }
};

/// Refreshes and waits until the results are published.
inline bool refreshAndWait(Kelvane::AppModel& model) {
    QSignalSpy spy(&model, &Kelvane::AppModel::refreshed);
    model.refresh();
    return spy.wait();
}

/// Waits for the end of a running change of the Dock and of the refresh that follows it.
inline bool waitForChange(Kelvane::AppModel& model) {
    QSignalSpy spy(&model, &Kelvane::AppModel::refreshed);
    return QTest::qWaitFor([&] { return !model.isWorking(); }, 10000) && (spy.count() > 0 || spy.wait(10000));
}

/// Makes the active profile one of these pinned applications and nothing else.
inline void pinActive(Kelvane::AppModel& model, const QStringList& words) {
    DockCore::Profile profile = model.activeProfile();
    profile.name = QStringLiteral("Work");
    profile.pinned = ModelWorld::bundleIDs(words);
    profile.excluded.clear();
    profile.adaptiveSlots = 0;
    model.update(profile);
}

} // namespace Fakes
