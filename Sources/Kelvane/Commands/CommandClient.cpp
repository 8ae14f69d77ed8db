#include "Kelvane/Commands/CommandClient.h"

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QLocalSocket>

using namespace std::chrono_literals;

namespace Kelvane::CommandClient {

namespace {
constexpr auto connectPatience = 2s;

/// Commands go only to a socket that is this user's own; its place may be in a folder that others can write to.
bool isOwn(const QString& socketPath, uint user) {
    const QFileInfo socket(socketPath);
    return socket.exists() && socket.ownerId() == user;
}
} // namespace

std::variant<Answer, Silence> ask(const QString& socketPath, const CommandRequest& request, uint user,
                                  std::chrono::milliseconds patience) {
    if (!isOwn(socketPath, user))
        return Silence::unreachable;
    QLocalSocket socket;
    socket.connectToServer(socketPath);
    if (!socket.waitForConnected(static_cast<int>(std::chrono::milliseconds(connectPatience).count())))
        return Silence::unreachable;
    socket.write(request.toLine());
    const QDeadlineTimer deadline(patience);
    while (!socket.canReadLine()) {
        if (!socket.waitForReadyRead(static_cast<int>(deadline.remainingTime())) && !socket.canReadLine())
            return deadline.hasExpired() ? Silence::late : Silence::lost;
    }
    const std::optional<Answer> answer = answerFromLine(socket.readLine());
    return answer ? std::variant<Answer, Silence>(*answer) : Silence::lost;
}

} // namespace Kelvane::CommandClient
