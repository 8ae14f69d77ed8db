#include "Kelvane/Commands/CommandRunner.h"

#include "DockCore/Storage/Paths.h"
#include "Support/ModelWorld.h"
#include "Support/TimeZone.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace DockCore;
using namespace Kelvane;
using namespace Fakes;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// Commands are written as on a command line and run on a model whose active profile "Work" pins c and a, while the
/// Dock holds a and b.
class CommandRunnerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        world.emplace();
        model.emplace(world->services(), world->paths(), nullptr, nullptr);
        pinActive(*model, {u"c"_s, u"a"_s});
        runner.emplace(*model);
    }
    void cleanup() {
        runner.reset();
        model.reset();
        world.reset();
    }

    void statusHoldsTheDocumentedKeys();
    void planOfAnotherProfileActivatesNothing();
    void applyAnswersWithTheToast();
    void applyOfANamedProfileActivatesIt();
    void aMatchingDockIsDoneAndNotChanged();
    void aFailureIsToldOnStandardErrorAndInTheDocument();
    void restoreGoesBackAndForth();
    void restoreOriginalWorksOnTheVeryFirstCommand();
    void unknownThingsAreMistakes_data();
    void unknownThingsAreMistakes();
    void aNameOfTwoProfilesIsRefusedWithTheirIds();
    void rankCountsTheTrackedDays();
    void listsAreWhole();
    void trackAndAutoChangeTheSettings();
    void resumeEndsThePause();
    void commandsAreAnsweredInTheirOrder();
    void aRefreshOfTheWindowDoesNotLoseACommand();
    void aChangeOfTheUserIsWaitedFor();
    void aChangeThatOvertakesACommandIsWaitedFor();
    void aProfileDeletedWhileACommandWaitsIsAMistake();
    void aChangeRefreshesFirst_data();
    void aChangeRefreshesFirst();
    void rankTakesTheWindowOfTheActiveProfile();
    void everyDocumentIsWhole_data();
    void everyDocumentIsWhole();
    void everyTextIsWhole_data();
    void everyTextIsWhole();
    void textForPeopleHasColoursOnlyOnATerminal();

private:
    /// A dry run with ten minutes of c behind it and two days on which the computer saw d opened, after an apply.
    void useAndApply();
    /// Leaves e alone in the Dock.
    void changeByHand();
    QString dryRunPath() const { return world->directory.filePath(u"dock.plist"_s); }
    Answer run(const QString& line, Colour colour = Colour::none) {
        const Command command = std::get<Command>(parseCommand(line.split(u' ')));
        std::optional<Answer> answer;
        runner->run(command, colour, [&answer](const Answer& result) { answer = result; });
        [&] { QTRY_VERIFY_WITH_TIMEOUT(answer, 10000); }();
        return answer.value_or(Answer{.status = -1});
    }
    QJsonDocument document(const QString& line) { return QJsonDocument::fromJson(run(line).output.toUtf8()); }

    std::optional<ModelWorld> world;
    std::optional<AppModel> model;
    std::optional<CommandRunner> runner;
    const Fakes::TimeZone zone = Fakes::TimeZone("Europe/Berlin");
};

void CommandRunnerTest::statusHoldsTheDocumentedKeys() {
    const QJsonObject status = document(u"status --json"_s).object();
    QCOMPARE(status.keys(),
             QStringList({u"activeProfile"_s, u"activeProfileID"_s, u"autoPaused"_s, u"autoUpdate"_s, u"current"_s,
                          u"diff"_s, u"dryRun"_s, u"matches"_s, u"proposal"_s, u"trackingEnabled"_s}));
    QCOMPARE(status[u"activeProfile"].toString(), u"Work"_s);
    QCOMPARE(status[u"autoUpdate"].toInt(), 86400);
    QCOMPARE(status[u"dryRun"].toBool(), false);
    const QJsonObject tile = status[u"current"].toArray().first().toObject();
    QCOMPARE(tile.keys(), QStringList({u"bundleID"_s, u"id"_s, u"kind"_s, u"label"_s, u"signature"_s, u"url"_s}));
    QCOMPARE(tile[u"url"].toString(), u"file:///Applications/a.app/"_s);
    const QJsonObject diff = status[u"diff"].toObject();
    QCOMPARE(diff[u"added"].toArray(), QJsonArray{u"org.example.c"_s});
    QCOMPARE(diff[u"removed"].toArray(), QJsonArray{u"org.example.b"_s});
    QCOMPARE(diff[u"moved"].toArray(), QJsonArray{});
}

void CommandRunnerTest::planOfAnotherProfileActivatesNothing() {
    const Profile other = model->profiles()[3];
    const QJsonObject plan = document(u"plan --json "_s + other.name).object();
    QCOMPARE(plan[u"profile"].toString(), other.name);
    QCOMPARE(plan[u"profileID"].toString(), uuidString(other.id));
    QCOMPARE(plan.keys(), QStringList({u"diff"_s, u"matches"_s, u"profile"_s, u"profileID"_s, u"tiles"_s}));
    QCOMPARE(model->activeProfile().name, u"Work"_s);
    QVERIFY(model->snapshots().isEmpty());
}

void CommandRunnerTest::applyAnswersWithTheToast() {
    QCOMPARE(run(u"apply"_s), (Answer{.output = u"Dock updated for Work.\n"_s}));
    QCOMPARE(world->dock(), QStringList({u"c"_s, u"a"_s}));
    QCOMPARE(model->snapshots().constLast().reason, u"Before Kelvane"_s);
    QCOMPARE(model->snapshots().constFirst().reason, u"Before Work"_s);
}

void CommandRunnerTest::applyOfANamedProfileActivatesIt() {
    Profile other = model->profiles()[1];
    other.name = u"Meeting"_s;
    other.pinned = ModelWorld::bundleIDs({u"e"_s});
    other.adaptiveSlots = 0;
    Profile third = model->profiles()[3];
    third.name = u"Third"_s;
    model->update(third);
    model->update(other);
    const QJsonObject outcome = document(u"apply --json "_s + uuidString(other.id).toLower()).object();
    QCOMPARE(outcome[u"text"].toString(), u"Dock updated for Meeting."_s);
    QCOMPARE(outcome[u"changed"].toBool(), true);
    QCOMPARE(model->activeProfile().id, other.id);
    QCOMPARE(world->dock(), QStringList{u"e"_s});
}

void CommandRunnerTest::aMatchingDockIsDoneAndNotChanged() {
    world->setDock({u"c"_s, u"a"_s});
    QCOMPARE(run(u"apply"_s), (Answer{.output = u"Your Dock already matches Work.\n"_s}));
    QCOMPARE(document(u"apply --json"_s).object()[u"changed"].toBool(), false);
}

void CommandRunnerTest::aFailureIsToldOnStandardErrorAndInTheDocument() {
    world->preferences.refusesToSave = true;
    const Answer answer = run(u"apply --json"_s);
    QCOMPARE(answer.status, int(Answer::failed));
    QCOMPARE(answer.error, u"macOS refused to save the Dock settings."_s);
    const QJsonObject outcome = QJsonDocument::fromJson(answer.output.toUtf8()).object();
    QCOMPARE(outcome[u"isError"].toBool(), true);
    QCOMPARE(outcome[u"changed"].toBool(), false);
    QCOMPARE(run(u"apply"_s).output, QString());
}

void CommandRunnerTest::restoreGoesBackAndForth() {
    run(u"apply"_s);
    QCOMPARE(run(u"restore"_s).output, u"Dock restored to “Before Work”.\n"_s);
    QCOMPARE(world->dock(), QStringList({u"a"_s, u"b"_s}));
    QCOMPARE(run(u"restore"_s).output, u"Dock restored to “Before restoring”.\n"_s);
    QCOMPARE(world->dock(), QStringList({u"c"_s, u"a"_s}));
    const QString id = model->snapshots().constLast().id;
    QCOMPARE(run(u"restore --snapshot "_s + id).output, u"Dock restored to “Before Kelvane”.\n"_s);
    QCOMPARE(world->dock(), QStringList({u"a"_s, u"b"_s}));
}

void CommandRunnerTest::restoreOriginalWorksOnTheVeryFirstCommand() {
    QCOMPARE(run(u"restore --original"_s).status, int(Answer::done));
    QCOMPARE(world->dock(), QStringList({u"a"_s, u"b"_s}));
}

void CommandRunnerTest::unknownThingsAreMistakes_data() {
    QTest::addColumn<QString>("line");
    QTest::newRow("a profile to plan") << u"plan Nobody"_s;
    QTest::newRow("a profile to apply") << u"apply Nobody"_s;
    QTest::newRow("a profile by part of its name") << u"apply Wor"_s;
    QTest::newRow("a snapshot") << u"restore --snapshot 1"_s;
    QTest::newRow("a profile of two lines") << u"apply x\ny"_s;
    QTest::newRow("a snapshot of two lines") << u"restore --snapshot x\ny"_s;
}

void CommandRunnerTest::unknownThingsAreMistakes() {
    QFETCH(QString, line);
    const Answer answer = run(line);
    QCOMPARE(answer.status, int(Answer::mistaken));
    QVERIFY2(answer.error.contains(u"expected"), qPrintable(answer.error));
    for (const QChar character : answer.error)
        QVERIFY(character.isPrint());
    QVERIFY(answer.output.isEmpty());
    QCOMPARE(world->dock(), QStringList({u"a"_s, u"b"_s}));
}

void CommandRunnerTest::aNameOfTwoProfilesIsRefusedWithTheirIds() {
    Profile twin = model->profiles()[2];
    twin.name = u"Work"_s;
    model->update(twin);
    const Answer answer = run(u"apply Work"_s);
    QCOMPARE(answer.status, int(Answer::mistaken));
    QVERIFY(answer.error.contains(uuidString(twin.id)));
    QVERIFY(answer.error.contains(uuidString(model->activeProfile().id)));
}

void CommandRunnerTest::rankCountsTheTrackedDays() {
    world->opened(u"/Applications/d.app"_s, {world->clock.now().addDays(-1), world->clock.now().addDays(-2)});
    const QJsonObject week = document(u"rank --window week --json"_s).object();
    QCOMPARE(week[u"window"].toInt(), 7);
    QCOMPARE(week[u"trackedDays"].toInt(-1), 0);
    const QJsonObject first = week[u"ranking"].toArray().first().toObject();
    QCOMPARE(first[u"bundleID"].toString(), u"org.example.d"_s);
    QCOMPARE(first[u"score"].toDouble(), 20.0);
    QCOMPARE(first[u"spotlightDays"].toInt(), 2);
    QVERIFY(first.contains(u"lastUsed"));
    QVERIFY(run(u"rank --window month"_s).output.startsWith(u"Last 30 days\n"));
}

void CommandRunnerTest::listsAreWhole() {
    QCOMPARE(document(u"apps --json"_s).array().size(), 5);
    const QJsonArray profiles = document(u"profiles --json"_s).array();
    QCOMPARE(profiles.size(), 5);
    QCOMPARE(profiles.first().toObject()[u"active"].toBool(), true);
    QCOMPARE(profiles.last().toObject()[u"active"].toBool(), false);
    run(u"apply"_s);
    const QJsonArray snapshots = document(u"snapshots --json"_s).array();
    QCOMPARE(snapshots.size(), 2);
    QCOMPARE(snapshots.last().toObject()[u"isOriginal"].toBool(), true);
}

void CommandRunnerTest::trackAndAutoChangeTheSettings() {
    QCOMPARE(run(u"track off"_s).output, u"Track app usage: off\n"_s);
    QVERIFY(!model->settings().trackingEnabled);
    QCOMPARE(run(u"auto hourly"_s).output, u"Reorganize automatically: Every hour\n"_s);
    QCOMPARE(model->settings().autoUpdate, AutoUpdate::hourly);
    const QJsonObject outcome = document(u"auto off --json"_s).object();
    QCOMPARE(outcome.keys(), QStringList({u"changed"_s, u"isError"_s, u"text"_s}));
}

void CommandRunnerTest::resumeEndsThePause() {
    run(u"apply"_s);
    world->setDock({u"e"_s});
    run(u"status"_s);
    QVERIFY(model->settings().autoPaused);
    QCOMPARE(run(u"resume"_s).output, u"Dock updated for Work.\n"_s);
    QVERIFY(!model->settings().autoPaused);
    QCOMPARE(world->dock(), QStringList({u"c"_s, u"a"_s}));
}

void CommandRunnerTest::commandsAreAnsweredInTheirOrder() {
    QStringList answers;
    const auto note = [&answers](const QString& name) {
        return [&answers, name](const Answer&) { answers.append(name); };
    };
    runner->run({.verb = Command::Verb::apply}, Colour::none, note(u"apply"_s));
    runner->run({.verb = Command::Verb::profiles}, Colour::none, note(u"profiles"_s));
    runner->run({.verb = Command::Verb::restore}, Colour::none, note(u"restore"_s));
    QVERIFY(answers.isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(answers, QStringList({u"apply"_s, u"profiles"_s, u"restore"_s}), 10000);
}

void CommandRunnerTest::aRefreshOfTheWindowDoesNotLoseACommand() {
    std::optional<Answer> answer;
    runner->run({.verb = Command::Verb::apply}, Colour::none, [&answer](const Answer& result) { answer = result; });
    model->refresh();
    model->refresh();
    QTRY_VERIFY_WITH_TIMEOUT(answer, 10000);
    QCOMPARE(answer->output, u"Dock updated for Work.\n"_s);
}

void CommandRunnerTest::aChangeOfTheUserIsWaitedFor() {
    QVERIFY(refreshAndWait(*model));
    Gate gate;
    world->holdRestarts(gate);
    model->applyActive(AppModel::Notify::always);
    std::optional<Answer> answer;
    runner->run({.verb = Command::Verb::restore}, Colour::none, [&answer](const Answer& result) { answer = result; });
    QVERIFY(!answer);
    gate.open();
    QTRY_VERIFY_WITH_TIMEOUT(answer, 10000);
    QCOMPARE(answer->output, u"Dock restored to “Before Work”.\n"_s);
}

void CommandRunnerTest::aChangeThatOvertakesACommandIsWaitedFor() {
    QVERIFY(refreshAndWait(*model));
    Gate gate;
    world->holdRestarts(gate);
    std::optional<Answer> answer;
    runner->run({.verb = Command::Verb::apply}, Colour::none, [&answer](const Answer& result) { answer = result; });
    // The command is still ranking.
    model->applyActive(AppModel::Notify::always);
    QVERIFY(model->isWorking());
    QVERIFY(refreshAndWait(*model));
    QVERIFY(!answer);
    gate.open();
    QTRY_VERIFY_WITH_TIMEOUT(answer, 10000);
    QCOMPARE(*answer, (Answer{.output = u"Your Dock already matches Work.\n"_s}));
}

void CommandRunnerTest::aChangeRefreshesFirst_data() {
    QTest::addColumn<QString>("line");
    QTest::newRow("apply") << u"apply"_s;
    QTest::newRow("resume") << u"resume"_s;
}

void CommandRunnerTest::aChangeRefreshesFirst() {
    QFETCH(const QString, line);
    Profile mostUsed = model->activeProfile();
    mostUsed.pinned.clear();
    mostUsed.adaptiveSlots = 1;
    model->update(mostUsed);
    world->opened(u"/Applications/d.app"_s, {world->clock.now()});
    QCOMPARE(run(line), (Answer{.output = u"Dock updated for Work.\n"_s}));
    QCOMPARE(world->dock(), QStringList{u"d"_s});
}

void CommandRunnerTest::rankTakesTheWindowOfTheActiveProfile() {
    Profile profile = model->activeProfile();
    for (const UsageWindow window : allUsageWindows()) {
        profile.window = window;
        model->update(profile);
        QCOMPARE(document(u"rank --json"_s).object()[u"window"].toInt(), days(window));
    }
}

void CommandRunnerTest::useAndApply() {
    qputenv("KELVANE_DRY_RUN", QFile::encodeName(dryRunPath()));
    world->opened(u"/Applications/d.app"_s, {world->clock.now().addDays(-1), world->clock.now().addDays(-2)});
    UsageStore usage(world->paths().usage());
    usage.addSeconds(600, ModelWorld::bundleID(u"c"_s), u"c"_s, world->clock.now());
    usage.addActivation(ModelWorld::bundleID(u"c"_s), u"c"_s, world->clock.now());
    usage.save(world->clock.now());
    runner.reset();
    model.emplace(world->services(), world->paths(), nullptr, nullptr);
    pinActive(*model, {u"c"_s, u"a"_s});
    runner.emplace(*model);
    world->clock.advance(1min);
    run(u"apply"_s);
    run(u"track off"_s);
}

void CommandRunnerTest::changeByHand() {
    world->dockStore.write({DockTile::app({ModelWorld::bundleID(u"e"_s), u"e"_s, u"/Applications/e.app"_s})});
}

void CommandRunnerTest::everyDocumentIsWhole_data() {
    const QByteArray e = R"({"id": "app:org.example.e", "kind": "app", "bundleID": "org.example.e", "label": "e",
        "url": "file:///Applications/e.app/", "signature": "org.example.e"})";
    const QByteArray ca = R"({"id": "app:org.example.c", "kind": "app", "bundleID": "org.example.c", "label": "c",
        "url": "file:///Applications/c.app/", "signature": "org.example.c"},
        {"id": "app:org.example.a", "kind": "app", "bundleID": "org.example.a", "label": "a",
        "url": "file:///Applications/a.app/", "signature": "org.example.a"})";
    const QByteArray eToCA =
        R"({"added": ["org.example.c", "org.example.a"], "removed": ["org.example.e"], "moved": []})";
    const QByteArray nothing = R"({"added": [], "removed": [], "moved": []})";
    const QByteArray profile = R"("activeProfile": "Work", "activeProfileID": "ID", "autoUpdate": 86400,
        "trackingEnabled": false, "trackingSince": "2026-03-11T10:00:00Z", "lastApplied": "2026-03-11T10:01:00Z",
        "dryRun": true)";

    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("isChangedByHand");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("status after an apply")
        << u"status"_s << false
        << "{" + profile + R"(, "autoPaused": false, "current": [)" + ca + R"(], "proposal": [)" + ca +
               R"(], "diff": )" + nothing + R"(, "matches": true})";
    QTest::newRow("status after a change by hand")
        << u"status"_s << true
        << "{" + profile + R"(, "autoPaused": true, "current": [)" + e + R"(], "proposal": [)" + ca + R"(], "diff": )" +
               eToCA + R"(, "matches": false})";
    QTest::newRow("plan after an apply") << u"plan"_s << false
                                         << R"({"profile": "Work", "profileID": "ID", "tiles": [)" + ca +
                                                R"(], "diff": )" + nothing + R"(, "matches": true})";
    QTest::newRow("plan after a change by hand") << u"plan"_s << true
                                                 << R"({"profile": "Work", "profileID": "ID", "tiles": [)" + ca +
                                                        R"(], "diff": )" + eToCA + R"(, "matches": false})";
    QTest::newRow("rank") << u"rank --window week"_s << false
                          << QByteArray(R"({"window": 7, "trackedDays": 1, "ranking": [
        {"bundleID": "org.example.d", "name": "d", "path": "/Applications/d.app", "seconds": 0, "activations": 0,
         "trackedDays": 0, "spotlightDays": 2, "lastUsed": "2026-03-10T10:00:00Z", "score": 17.142857142857146},
        {"bundleID": "org.example.c", "name": "c", "path": "/Applications/c.app", "seconds": 600, "activations": 1,
         "trackedDays": 1, "spotlightDays": 0, "score": 12}]})");
    QTest::newRow("apps") << u"apps"_s << false << QByteArray(R"([
        {"bundleID": "org.example.a", "name": "a", "path": "/Applications/a.app"},
        {"bundleID": "org.example.b", "name": "b", "path": "/Applications/b.app"},
        {"bundleID": "org.example.c", "name": "c", "path": "/Applications/c.app"},
        {"bundleID": "org.example.d", "name": "d", "path": "/Applications/d.app"},
        {"bundleID": "org.example.e", "name": "e", "path": "/Applications/e.app"}])");
    QTest::newRow("apply after an apply")
        << u"apply"_s << false
        << QByteArray(R"({"text": "Your Dock already matches Work.", "isError": false, "changed": false})");
    QTest::newRow("restore")
        << u"restore"_s << false
        << QByteArray(R"({"text": "Dock restored to “Before Work”.", "isError": false, "changed": true})");
}

void CommandRunnerTest::everyDocumentIsWhole() {
    QFETCH(const QString, line);
    QFETCH(const bool, isChangedByHand);
    QFETCH(QByteArray, expected);
    useAndApply();
    if (isChangedByHand)
        changeByHand();
    expected.replace("\"ID\"", '"' + uuidString(model->activeProfile().id).toLatin1() + '"');
    const QJsonDocument document = QJsonDocument::fromJson(expected);
    QVERIFY(!document.isNull());
    QCOMPARE(QString::fromUtf8(QJsonDocument::fromJson(run(line + u" --json"_s).output.toUtf8()).toJson()),
             QString::fromUtf8(document.toJson()));
}

void CommandRunnerTest::everyTextIsWhole_data() {
    const QString plan = uR"(Suggested for Work: 2 apps
  +  1  c
  +  2  a

+ 2 added   − 1 leaving   ↔ 0 moved
Leaving: e
)"_s;
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("expected");
    QTest::newRow("status") << u"status"_s << uR"(Active profile            Work
Reorganize automatically  Once a day
                          Paused: the Dock was changed outside Kelvane.
Track app usage           off, since 11 Mar 2026, 11:00
Last applied              11 Mar 2026, 11:01
Dry run                   FILE

Now: 1 app
     1  e

)"_s + plan;
    QTest::newRow("plan") << u"plan"_s << plan;
    QTest::newRow("rank") << u"rank --window week"_s << uR"(Last 7 days
#  score  minutes  switches  days  opened  name
1  17.1   0        0         0     2       d
2  12.0   10       1         1     0       c
)"_s;
}

void CommandRunnerTest::everyTextIsWhole() {
    QFETCH(const QString, line);
    QFETCH(QString, expected);
    useAndApply();
    changeByHand();
    QCOMPARE(run(line), (Answer{.output = expected.replace(u"FILE"_s, dryRunPath())}));
}

void CommandRunnerTest::aProfileDeletedWhileACommandWaitsIsAMistake() {
    QVERIFY(refreshAndWait(*model));
    Gate gate;
    world->holdRestarts(gate);
    model->applyActive(AppModel::Notify::always);
    const QString other = uuidString(model->profiles()[1].id);
    std::optional<Answer> answer;
    runner->run({.verb = Command::Verb::apply, .profile = other}, Colour::none,
                [&answer](const Answer& result) { answer = result; });
    model->removeProfile(model->profiles()[1].id);
    QVERIFY(!answer);
    gate.open();
    QTRY_VERIFY_WITH_TIMEOUT(answer, 10000);
    QCOMPARE(answer->status, int(Answer::mistaken));
    QVERIFY(answer->error.startsWith(u"There is no profile “%1”; expected one of "_s.arg(other)));
    QCOMPARE(world->dock(), QStringList({u"c"_s, u"a"_s}));
}

void CommandRunnerTest::textForPeopleHasColoursOnlyOnATerminal() {
    QVERIFY(!run(u"status"_s).output.contains(u'\x1b'));
    QVERIFY(run(u"status"_s, Colour::terminal).output.contains(u'\x1b'));
}

QTEST_GUILESS_MAIN(CommandRunnerTest)
#include "CommandRunnerTest.moc"
