#include "Kelvane/AppModel.h"

#include "DockCore/Storage/Paths.h"
#include "Kelvane/UsageTracker.h"
#include "Support/FakeWorkspace.h"
#include "Support/ModelWorld.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <ctime>
#include <map>
#include <vector>

using namespace DockCore;
using namespace Kelvane;
using namespace Fakes;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using std::chrono::nanoseconds;

namespace {

const QDateTime& firstMoment() {
    static const QDateTime moment = QDateTime::fromString(u"2026-03-08T05:00:00Z"_s, Qt::ISODate);
    return moment;
}

/// One thing that happens to the computer or that somebody does.
struct Event {
    enum class Kind {
        tick,
        front,  // `app` comes to the front; "panel" is no regular one, "adrift" in no bundle, "" nothing at all
        input,  // a key or the mouse
        pause,  // lock, sleep, another user
        resume, // the return from it
        off,    // tracking is switched off
        on,
        setClock, // the wall clock jumps by `jump`
        check,    // a look of the schedule
        hand,     // the user arranges the Dock as `dock`
        resumeUpdates,
        restore
    };
    nanoseconds at = 0ns;
    Kind kind = Kind::tick;
    QString app = {};
    nanoseconds jump = 0ns;
    QStringList dock = {};
};
using Kind = Event::Kind;

/// Writes a month in which a person works, wanders off, sleeps, and does to the machine what people do.
class Script {
public:
    explicit Script(quint32 seed)
        : m_random(seed) {
        for (int day = 0; day < 31; ++day)
            addDay(day);
        std::stable_sort(events.begin(), events.end(), [](const Event& a, const Event& b) { return a.at < b.at; });
        // No two things happen at once, so that their order is no matter of taste.
        for (size_t i = 1; i < events.size(); ++i)
            events[i].at = std::max(events[i].at, events[i - 1].at + 1ns);
    }

    std::vector<Event> events;

private:
    bool chance(int percent) { return m_random.bounded(100) < percent; }
    nanoseconds between(nanoseconds low, nanoseconds high) {
        return low +
               nanoseconds(static_cast<qint64>(m_random.generateDouble() * static_cast<double>((high - low).count())));
    }
    void add(nanoseconds at, Kind kind, const QString& app = {}) {
        events.push_back({.at = at, .kind = kind, .app = app});
    }

    void addDay(int day) {
        const nanoseconds morning = 24h * day + between(1h, 3h);
        const nanoseconds evening = morning + between(8h, 10h);
        addSession(morning, evening);
        // Some evenings last until after midnight.
        if (day % 4 == 1)
            addSession(24h * day + 16h + 30min, 24h * day + 19h + 20min);
        if (day % 5 == 2)
            addClockJump(morning + 2h, day % 2 == 0 ? 49h : -26h);
        if (day % 3 == 2)
            addHandChange(morning + between(1h, 4h));
        if (day % 9 == 4)
            add(evening - 20min, Kind::restore);
        if (day % 3 == 2 || day % 9 == 4)
            add(evening - 5min, Kind::resumeUpdates);
        if (day % 7 == 3) {
            add(morning + 3h, Kind::off);
            add(morning + 3h + between(5s, 40min), Kind::on);
        }
    }

    void addClockJump(nanoseconds at, nanoseconds jump) {
        events.push_back({.at = at, .kind = Kind::setClock, .jump = jump});
        events.push_back({.at = at + 70min, .kind = Kind::setClock, .jump = -jump});
    }

    void addHandChange(nanoseconds at) {
        QStringList dock = {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s};
        std::shuffle(dock.begin(), dock.end(), m_random);
        events.push_back({.at = at, .kind = Kind::hand, .dock = dock.first(m_random.bounded(1, 6))});
    }

    /// The machine is on from `begin` to `end`.
    void addSession(nanoseconds begin, nanoseconds end) {
        const bool announcesSleep = chance(50);
        if (announcesSleep)
            add(begin, Kind::resume);
        std::vector<std::pair<nanoseconds, nanoseconds>> gaps;
        for (nanoseconds at = begin + between(10min, 40min); at < end - 1h; at += between(20min, 90min))
            gaps.push_back({at, at + addAbsence(at)});
        const auto isAsleep = [&gaps](nanoseconds at) {
            return std::any_of(gaps.begin(), gaps.end(),
                               [at](const auto& gap) { return at > gap.first && at < gap.second; });
        };
        for (nanoseconds at = begin + 1s; at < end; at += between(9500ms, 10500ms))
            if (!isAsleep(at) && !chance(1))
                add(at, Kind::tick);
        for (nanoseconds at = begin + 7s; at < end; at += 120s)
            if (!isAsleep(at))
                add(at, Kind::check);
        for (nanoseconds at = begin; at < end; at += between(200ms, 90s))
            if (!isAsleep(at))
                add(at, Kind::front, nextApplication());
        // Typing, with pauses of every length up to a long lunch.
        for (nanoseconds at = begin; at < end; at += chance(97) ? between(100ms, 15s) : between(15s, 25min))
            if (!isAsleep(at))
                add(at, Kind::input);
        if (announcesSleep)
            add(end, Kind::pause);
    }

    /// One way to be away; gives for how long nothing runs at all.
    nanoseconds addAbsence(nanoseconds at) {
        const nanoseconds length = between(20s, 20min);
        switch (m_random.bounded(4)) {
        case 0: // the screen is locked
            add(at, Kind::pause);
            add(at + length, Kind::resume);
            return 0ns;
        case 1: // locked, and then asleep; the wake comes before the unlocking
            add(at, Kind::pause);
            add(at + 5s, Kind::pause);
            add(at + length, Kind::resume);
            add(at + length + 8s, Kind::resume);
            return 0ns;
        case 2: // asleep without a word
            return length;
        default: // the process stands still
            return between(25s, 50s);
        }
    }

    QString nextApplication() {
        static const QStringList applications = {u"a"_s, u"a"_s, u"b"_s,     u"b"_s,      u"c"_s, u"d"_s,
                                                 u"d"_s, u"e"_s, u"panel"_s, u"adrift"_s, u""_s};
        // Favourites change from week to week.
        const auto week = static_cast<int>(events.size() / 20'000);
        return applications.at((m_random.bounded(static_cast<int>(applications.size())) + week) % applications.size());
    }

    QRandomGenerator m_random;
};

/// What the month must have led to, by questions to the script: when was the last return, which was the last word about
/// the pause, and so on. It uses nothing of what it checks, and counts in whole nanoseconds.
class Ledger {
public:
    explicit Ledger(const std::vector<Event>& events)
        : m_events(events) {
        for (size_t i = 0; i < events.size(); ++i)
            m_byKind[events[i].kind].push_back(i);
    }

    /// By local day, then by application.
    std::map<QString, std::map<QString, nanoseconds>> seconds;
    std::map<QString, std::map<QString, qint64>> activations;
    QStringList dock;
    bool isPaused = false;
    std::optional<QStringList> signature;
    nanoseconds applied = 0ns;
    /// The saved Docks, newest first.
    QList<QStringList> saved;
    qint64 creditedTicks = 0;
    int applies = 0;
    int pauses = 0;

    void note(size_t index) {
        const Event& event = m_events[index];
        switch (event.kind) {
        case Kind::tick:
            noteTick(index);
            break;
        case Kind::front:
            if (m_front != event.app && isApplication(event.app) && isGood(index, Kind::on, Kind::off))
                ++activations[day(index)][event.app];
            m_front = event.app;
            break;
        case Kind::check:
            if (isDue(index)) {
                look();
                if (!isPaused)
                    apply(index);
            }
            break;
        case Kind::hand:
            dock = event.dock;
            break;
        case Kind::resumeUpdates:
            look();
            apply(index);
            break;
        case Kind::restore: {
            const auto previous =
                std::find_if(saved.cbegin(), saved.cend(), [this](const QStringList& old) { return old != dock; });
            if (previous == saved.cend())
                break;
            const QStringList old = *previous;
            saved.prepend(dock);
            dock = old;
            pauses += isPaused ? 0 : 1;
            isPaused = true;
            signature.reset();
            break;
        }
        default:
            break;
        }
    }

    /// Whether the check at `index` was to begin anything.
    bool isDue(size_t index) const {
        return !isPaused && signature && m_events[index].at - applied >= 1h && sinceInput(index) > 20s;
    }
    nanoseconds sinceInput(size_t index) const { return m_events[index].at - lastOf(index, {Kind::input}); }

private:
    static bool isApplication(const QString& app) { return app.size() == 1; }

    /// The last event of `kind` up to and with `index`.
    std::optional<size_t> last(size_t index, Kind kind) const {
        const auto found = m_byKind.find(kind);
        if (found == m_byKind.end())
            return std::nullopt;
        const auto after = std::upper_bound(found->second.begin(), found->second.end(), index);
        return after == found->second.begin() ? std::nullopt : std::optional(*std::prev(after));
    }

    /// When one of `kinds` happened last up to and with `index`; the beginning when none did.
    nanoseconds lastOf(size_t index, std::initializer_list<Kind> kinds) const {
        nanoseconds at = 0ns;
        for (const Kind kind : kinds)
            if (const auto event = last(index, kind))
                at = std::max(at, m_events[*event].at);
        return at;
    }

    /// Whether `good` was said later than `bad`, or neither was.
    bool isGood(size_t index, Kind good, Kind bad) const { return last(index, good) >= last(index, bad); }

    void noteTick(size_t index) {
        const nanoseconds now = m_events[index].at;
        const nanoseconds tick = index == 0 ? 0ns : lastOf(index - 1, {Kind::tick, Kind::resume, Kind::on});
        if (now - tick >= 30s || sinceInput(index) >= 300s || !isApplication(m_front) ||
            !isGood(index, Kind::on, Kind::off) || !isGood(index, Kind::resume, Kind::pause))
            return;
        seconds[day(index)][m_front] += now - tick;
        ++creditedTicks;
    }

    QDate date(size_t index) {
        // Jumps are few: their sum is carried along instead of asked for.
        for (; m_summed <= index; ++m_summed)
            m_jumps += m_events[m_summed].jump;
        const qint64 utc = firstMoment().toSecsSinceEpoch() +
                           std::chrono::floor<std::chrono::seconds>(m_events[index].at + m_jumps).count();
        // Summer time in Berlin began on 2026-03-29 at 01:00 UTC.
        const qint64 offset = utc >= 1'774'746'000 ? 7'200 : 3'600;
        return QDate(1970, 1, 1).addDays((utc + offset) / 86'400);
    }
    QString day(size_t index) { return date(index).toString(Qt::ISODate); }

    QStringList wanted(size_t index) {
        std::map<QString, double> scores;
        const QDate today = date(index);
        for (int age = 0; age < 7; ++age) {
            const QString key = today.addDays(-age).toString(Qt::ISODate);
            for (const auto& [app, time] : seconds[key])
                scores[app] += std::chrono::duration<double, std::ratio<60>>(time).count();
            for (const auto& [app, count] : activations[key])
                scores[app] += 2.0 * static_cast<double>(count);
        }
        scores.erase(u"c"_s);
        std::vector<std::pair<double, QString>> order;
        for (const auto& [app, score] : scores)
            order.emplace_back(-score, app);
        std::sort(order.begin(), order.end());
        QStringList result = {u"c"_s};
        for (size_t i = 0; i < order.size() && i < 2; ++i)
            result.append(order[i].second);
        return result;
    }

    /// A refresh: a Dock that somebody else changed pauses.
    void look() {
        if (!isPaused && signature && *signature != dock) {
            isPaused = true;
            ++pauses;
        }
    }

    void apply(size_t index) {
        const QStringList next = wanted(index);
        if (next != dock) {
            saved.prepend(dock);
            ++applies;
        }
        dock = next;
        signature = next;
        applied = m_events[index].at;
        isPaused = false;
    }

    const std::vector<Event>& m_events;
    std::map<Kind, std::vector<size_t>> m_byKind;
    QString m_front;
    size_t m_summed = 0;
    nanoseconds m_jumps = 0ns;
};

} // namespace

class SimulatedMonthTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aMonthAddsUp_data();
    void aMonthAddsUp();

private:
    static QStringList dockInFile(const QString& path);
    static void arrange(const QString& path, const QStringList& words);
    static RunningApplication running(const QString& app);
};

void SimulatedMonthTest::initTestCase() {
    qputenv("TZ", "Europe/Berlin");
    tzset();
    // A month saves some ten thousand times, and each save waits for the disk; memory is one that does not let it wait.
    if (QFileInfo(u"/dev/shm"_s).isWritable())
        qputenv("TMPDIR", "/dev/shm");
}

QStringList SimulatedMonthTest::dockInFile(const QString& path) {
    const auto values = PropertyList::readDictionary(path).value_or(DockState());
    QStringList words;
    for (const DockTile& tile : tilesFrom(values.value(u"persistent-apps"_s)))
        words.append(tile.signature().section(u'.', -1));
    return words;
}

void SimulatedMonthTest::arrange(const QString& path, const QStringList& words) {
    PropertyList::Array tiles;
    for (const QString& word : words) {
        const AppInfo app{ModelWorld::bundleID(word), word, u"/Applications/%1.app"_s.arg(word)};
        tiles.append(PropertyList{DockTile::app(app).raw});
    }
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(
        PropertyList{DockState{{u"persistent-apps"_s, PropertyList{tiles}}}}.serialize(PropertyList::Format::xml));
}

RunningApplication SimulatedMonthTest::running(const QString& app) {
    RunningApplication application = Fakes::Workspace::regular(ModelWorld::bundleID(app), app);
    application.isRegular = app != u"panel"_s;
    if (app == u"adrift"_s)
        application.bundleID.reset();
    return application;
}

void SimulatedMonthTest::aMonthAddsUp_data() {
    QTest::addColumn<quint32>("seed");
    QTest::newRow("one month") << 1U;
    QTest::newRow("another month") << 2U;
}

void SimulatedMonthTest::aMonthAddsUp() {
    QFETCH(quint32, seed);
    const Script script(seed);
    const std::vector<Event>& events = script.events;

    ModelWorld world;
    const QString dockFile = world.directory.filePath(u"Dock.plist"_s);
    arrange(dockFile, {u"a"_s, u"b"_s});
    qputenv("KELVANE_DRY_RUN", dockFile.toLocal8Bit());
    world.clock.set(firstMoment());
    Fakes::Workspace workspace;
    AppModel model(world.services(), world.paths(), &workspace, nullptr);
    Profile profile = model.activeProfile();
    profile.pinned = ModelWorld::bundleIDs({u"c"_s});
    profile.excluded.clear();
    profile.adaptiveSlots = 2;
    profile.window = UsageWindow::week;
    profile.separatePinned = false;
    model.update(profile);
    model.setAutoUpdate(AutoUpdate::hourly);
    model.start();
    // The script ticks; the real clock must not.
    for (QTimer* timer : model.findChildren<QTimer*>() + model.tracker().findChildren<QTimer*>())
        timer->stop();
    QVERIFY(refreshAndWait(model));
    model.finishOnboarding(AppModel::Apply::yes);
    QVERIFY(waitForChange(model));

    Ledger ledger(events);
    ledger.dock = {u"c"_s};
    ledger.signature = ledger.dock;
    ledger.saved = {{u"a"_s, u"b"_s}, {u"a"_s, u"b"_s}};
    QCOMPARE(dockInFile(dockFile), ledger.dock);

    nanoseconds now = 0ns;
    for (size_t i = 0; i < events.size(); ++i) {
        const Event& event = events[i];
        world.clock.advance(event.at - now);
        now = event.at;
        workspace.idle = ledger.sinceInput(i);
        const bool begins = event.kind == Kind::check && ledger.isDue(i);
        ledger.note(i);
        QSignalSpy refreshed(&model, &AppModel::refreshed);
        QSignalSpy began(&model, &AppModel::currentChanged);
        switch (event.kind) {
        case Kind::tick:
            model.tracker().sample();
            continue;
        case Kind::front:
            if (event.app.isEmpty())
                workspace.front.reset();
            else
                workspace.activate(running(event.app));
            continue;
        case Kind::input:
            continue;
        case Kind::pause:
            workspace.pause();
            continue;
        case Kind::resume:
            workspace.resume();
            continue;
        case Kind::off:
            model.setTracking(false);
            continue;
        case Kind::on:
            model.setTracking(true);
            continue;
        case Kind::setClock:
            world.clock.set(
                world.clock.now().addMSecs(std::chrono::duration_cast<std::chrono::milliseconds>(event.jump).count()));
            continue;
        case Kind::hand:
            arrange(dockFile, event.dock);
            continue;
        case Kind::check:
            model.autoCheck();
            QVERIFY2(began.isEmpty() == !begins, qPrintable(u"check %1"_s.arg(i)));
            if (!begins)
                continue;
            break;
        case Kind::resumeUpdates:
            model.refresh([&model] { model.resumeAuto(); });
            break;
        case Kind::restore:
            model.restorePrevious();
            QVERIFY(waitForChange(model));
            break;
        }
        QVERIFY(!refreshed.isEmpty() || refreshed.wait(10'000));
        if (model.isWorking())
            QVERIFY(waitForChange(model));
        QCOMPARE(dockInFile(dockFile), ledger.dock);
        QCOMPARE(model.settings().autoPaused, ledger.isPaused);
        QCOMPARE(model.settings().lastAppliedSignature.has_value(), ledger.signature.has_value());
    }
    model.tracker().flush();

    // The month was one in which everything happened.
    QVERIFY(ledger.creditedTicks > 20'000);
    QVERIFY(ledger.applies > 20);
    QVERIFY(ledger.pauses > 5);
    QVERIFY(ledger.seconds.size() > 31);

    const UsageStore stored(world.paths().usage());
    for (QDate day(2026, 3, 1); day <= QDate(2026, 4, 15); day = day.addDays(1)) {
        const QString key = day.toString(Qt::ISODate);
        const DayUsage usage = stored.day(key).value_or(DayUsage());
        const auto& seconds = ledger.seconds[key];
        QCOMPARE(static_cast<size_t>(usage.seconds.size()), seconds.size());
        for (const auto& [app, time] : seconds)
            QCOMPARE(usage.seconds.value(ModelWorld::bundleID(app)), std::chrono::duration<double>(time).count());
        const auto& activations = ledger.activations[key];
        QCOMPARE(static_cast<size_t>(usage.activations.size()), activations.size());
        for (const auto& [app, count] : activations)
            QCOMPARE(usage.activations.value(ModelWorld::bundleID(app)), count);
    }
    // No Dock was restarted and nobody waited.
    QVERIFY(world.processes.runs.isEmpty());
    QVERIFY(world.clock.sleeps.isEmpty());
}

QTEST_GUILESS_MAIN(SimulatedMonthTest)
#include "SimulatedMonthTest.moc"
