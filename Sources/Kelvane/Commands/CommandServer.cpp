#include "Kelvane/Commands/CommandServer.h"

#include "Kelvane/Commands/CommandMessage.h"

#include <QLocalSocket>
#include <QPointer>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Kelvane {

namespace {
/// A client that has not asked by then is not going to.
constexpr auto patience = 5s;
} // namespace

CommandServer::CommandServer(CommandRunner& runner, const QString& path)
    : m_runner(runner) {
    QLocalServer::removeServer(path);
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &CommandServer::accept);
    m_server.listen(path);
}

void CommandServer::accept() {
    while (QLocalSocket* socket = m_server.nextPendingConnection()) {
        socket->setReadBufferSize(longestRequest + 1);
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { read(socket); });
        auto* deadline = new QTimer(socket);
        deadline->setSingleShot(true);
        connect(deadline, &QTimer::timeout, socket, [socket] {
            answer(socket, {.status = Answer::mistaken,
                            .error = u"Kelvane was asked nothing it could read; expected a command."_s});
        });
        deadline->start(patience);
        read(socket);
    }
}

void CommandServer::read(QLocalSocket* socket) {
    if (!socket->canReadLine() && socket->bytesAvailable() <= longestRequest)
        return;
    socket->disconnect(this);
    delete socket->findChild<QTimer*>();
    const std::optional<CommandRequest> request =
        socket->canReadLine() ? CommandRequest::fromLine(socket->readLine(longestRequest + 1)) : std::nullopt;
    if (!request)
        return answer(socket, {.status = Answer::mistaken,
                               .error = u"Kelvane was asked nothing it could read; expected a command."_s});
    if (request->kind == CommandRequest::Kind::showWindow) {
        answer(socket, {});
        Q_EMIT showRequested();
        return;
    }
    const auto command = parseCommand(request->arguments);
    if (const auto* mistake = std::get_if<CommandMistake>(&command))
        return answer(socket, {.status = Answer::mistaken, .error = mistake->sentence});
    m_runner.run(std::get<Command>(command), request->colour, [socket = QPointer(socket)](const Answer& result) {
        if (socket != nullptr)
            answer(socket, result);
    });
}

void CommandServer::answer(QLocalSocket* socket, const Answer& answer) {
    socket->write(toLine(answer));
    socket->disconnectFromServer();
}

} // namespace Kelvane
