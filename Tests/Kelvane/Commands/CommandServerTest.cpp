#include "Kelvane/Commands/CommandServer.h"

#include "Kelvane/Commands/CommandClient.h"
#include "Kelvane/Commands/CommandMessage.h"
#include "Support/ModelWorld.h"

#include <QDir>
#include <QFileInfo>
#include <QLocalSocket>
#include <QTest>
#include <QThread>

using namespace Kelvane;
using namespace Fakes;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class CommandServerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        world.emplace();
        model.emplace(world->services(), world->paths(), nullptr, nullptr);
        runner.emplace(*model);
        path = directory.path() + u"/socket"_s;
        user = QFileInfo(directory.path()).ownerId();
        server.emplace(*runner, path);
        QVERIFY(server->isListening());
    }
    void cleanup() {
        server.reset();
        runner.reset();
        model.reset();
        world.reset();
    }

    void aCommandIsAnswered();
    void aMistakeIsAnswered();
    void askingForTheWindowIsPassedOn();
    void garbageIsRefusedWithASentence_data();
    void garbageIsRefusedWithASentence();
    void aClientThatLeavesEarlyDisturbsNobody();
    void theSocketIsTheUsersAlone();
    void aSocketLeftByACrashIsTakenOver();
    void aSocketOfAnotherUserIsNotAsked();
    void nobodyThereIsUnreachable();
    void messagesReadBackEqual();
    void aLongSupportFolderHasAShortSocket();
    void theSocketFollowsFromTheSupportFolder();

private:
    using Reply = std::variant<Answer, CommandClient::Silence>;
    /// Asks from another thread, since asking blocks.
    Reply ask(const CommandRequest& request) {
        Reply reply;
        const std::unique_ptr<QThread> thread(
            QThread::create([&] { reply = CommandClient::ask(path, request, user, 10s); }));
        thread->start();
        [&] { QTRY_VERIFY_WITH_TIMEOUT(thread->isFinished(), 15000); }();
        thread->wait();
        return reply;
    }

    QTemporaryDir directory;
    QString path;
    uint user = 0;
    std::optional<ModelWorld> world;
    std::optional<AppModel> model;
    std::optional<CommandRunner> runner;
    std::optional<CommandServer> server;
};

void CommandServerTest::aCommandIsAnswered() {
    const Reply reply = ask({.arguments = {u"auto"_s, u"hourly"_s}});
    QVERIFY(std::holds_alternative<Answer>(reply));
    QCOMPARE(std::get<Answer>(reply).output, u"Reorganize automatically: Every hour\n"_s);
    QCOMPARE(model->settings().autoUpdate, DockCore::AutoUpdate::hourly);
}

void CommandServerTest::aMistakeIsAnswered() {
    const Reply reply = ask({.arguments = {u"sing"_s}});
    QVERIFY(std::holds_alternative<Answer>(reply));
    QCOMPARE(std::get<Answer>(reply).status, int(Answer::mistaken));
}

void CommandServerTest::askingForTheWindowIsPassedOn() {
    QSignalSpy shown(&*server, &CommandServer::showRequested);
    QCOMPARE(std::get<Answer>(ask({.kind = CommandRequest::Kind::showWindow})), Answer{});
    QCOMPARE(shown.count(), 1);
}

void CommandServerTest::garbageIsRefusedWithASentence_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("no JSON") << QByteArray("hello\n");
    QTest::newRow("an empty line") << QByteArray("\n");
    QTest::newRow("an array") << QByteArray("[1]\n");
    QTest::newRow("no arguments") << QByteArray("{}\n");
    QTest::newRow("arguments of a wrong type") << QByteArray(R"({"arguments":[1],"colour":false})"
                                                             "\n");
    QTest::newRow("zero bytes") << QByteArray(16, '\0') + '\n';
    QTest::newRow("broken UTF-8") << QByteArray("{\"arguments\":[\"\xff\xfe\"]}\n");
    QTest::newRow("a line without an end") << QByteArray(longestRequest + 100, 'x');
    QTest::newRow("a line too long") << QByteArray(longestRequest + 100, 'x') + '\n';
}

void CommandServerTest::garbageIsRefusedWithASentence() {
    QFETCH(QByteArray, bytes);
    QLocalSocket socket;
    socket.connectToServer(path);
    QVERIFY(socket.waitForConnected());
    socket.write(bytes);
    QTRY_VERIFY(socket.canReadLine());
    const std::optional<Answer> answer = answerFromLine(socket.readLine());
    QVERIFY(answer);
    QCOMPARE(answer->status, int(Answer::mistaken));
    QCOMPARE(answer->error, u"Kelvane was asked nothing it could read; expected a command."_s);
}

void CommandServerTest::aClientThatLeavesEarlyDisturbsNobody() {
    {
        QLocalSocket socket;
        socket.connectToServer(path);
        QVERIFY(socket.waitForConnected());
        socket.write(CommandRequest{.arguments = {u"status"_s}}.toLine());
        QVERIFY(socket.waitForBytesWritten());
    }
    QVERIFY(std::holds_alternative<Answer>(ask({.arguments = {u"profiles"_s}})));
}

void CommandServerTest::theSocketIsTheUsersAlone() {
    const QFile::Permissions others =
        QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    QCOMPARE(QFileInfo(path).permissions() & others, QFile::Permissions());
}

void CommandServerTest::aSocketLeftByACrashIsTakenOver() {
    server.reset();
    QFile left(path);
    QVERIFY(left.open(QIODevice::WriteOnly));
    left.close();
    server.emplace(*runner, path);
    QVERIFY(std::holds_alternative<Answer>(ask({.arguments = {u"profiles"_s}})));
}

void CommandServerTest::aSocketOfAnotherUserIsNotAsked() {
    QCOMPARE(std::get<CommandClient::Silence>(CommandClient::ask(path, {.arguments = {u"profiles"_s}}, user + 1, 1s)),
             CommandClient::Silence::unreachable);
}

void CommandServerTest::nobodyThereIsUnreachable() {
    server.reset();
    QCOMPARE(std::get<CommandClient::Silence>(CommandClient::ask(path, {}, user, 1s)),
             CommandClient::Silence::unreachable);
}

void CommandServerTest::messagesReadBackEqual() {
    const CommandRequest request{.arguments = {u"apply"_s, u"仕事 \"x\"\n"_s}, .colour = Colour::terminal};
    QCOMPARE(CommandRequest::fromLine(request.toLine()), request);
    QCOMPARE(request.toLine().count('\n'), 1);
    const Answer answer{.status = 1, .output = u"a\nb"_s, .error = u"“no”"_s};
    QCOMPARE(answerFromLine(toLine(answer)), answer);
}

void CommandServerTest::aLongSupportFolderHasAShortSocket() {
    QString deep = directory.path();
    for (int level = 0; level < 12; ++level)
        deep += u"/a-rather-long-name"_s;
    QVERIFY(QDir().mkpath(deep));
    const QString socket = commandSocketPath(deep);
    QVERIFY(QFile::encodeName(socket).size() <= 84);
    QVERIFY(socket != commandSocketPath(deep + u"/.."_s));
    server.emplace(*runner, socket);
    QVERIFY(server->isListening());
}

void CommandServerTest::theSocketFollowsFromTheSupportFolder() {
    const QString plain = directory.path() + u"/support"_s;
    QVERIFY(QDir().mkpath(plain));
    QVERIFY(QFile::link(plain, directory.path() + u"/link"_s));
    QCOMPARE(commandSocketPath(directory.path() + u"/link"_s), commandSocketPath(plain));
    QCOMPARE(commandSocketPath(plain + u"/"_s), commandSocketPath(plain));
}

QTEST_GUILESS_MAIN(CommandServerTest)
#include "CommandServerTest.moc"
