#include "Kelvane/Commands/CommandRunner.h"

#include "Support/ModelWorld.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace DockCore;
using namespace Kelvane;
using namespace Fakes;
using namespace Qt::StringLiterals;

/// Commands are written as on a command line and run on a model whose active profile "Work" pins c and a, while the
/// Dock holds a and b.
class CommandRunnerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        world.emplace();
        model.emplace(nullptr, nullptr);
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
    void aProfileDeletedWhileACommandWaitsIsAMistake();
    void textForPeopleHasColoursOnlyOnATerminal();

private:
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
    model->applyActive(AppModel::Voice::spoken);
    std::optional<Answer> answer;
    runner->run({.verb = Command::Verb::restore}, Colour::none, [&answer](const Answer& result) { answer = result; });
    QVERIFY(!answer);
    gate.open();
    QTRY_VERIFY_WITH_TIMEOUT(answer, 10000);
    QCOMPARE(answer->output, u"Dock restored to “Before Work”.\n"_s);
}

void CommandRunnerTest::aProfileDeletedWhileACommandWaitsIsAMistake() {
    QVERIFY(refreshAndWait(*model));
    Gate gate;
    world->holdRestarts(gate);
    model->applyActive(AppModel::Voice::spoken);
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
