#pragma once

#include "Kelvane/Commands/CommandRunner.h"

#include <QLocalServer>
#include <QObject>

class QLocalSocket;

namespace Kelvane {

/// Takes commands from other processes of this user over a local socket and answers them. It asks nothing of the model
/// itself. Main thread only; made while the instance lock is held, so that what a crash left there can be cleared away.
class CommandServer : public QObject {
    Q_OBJECT

public:
    CommandServer(CommandRunner& runner, const QString& path);

    bool isListening() const { return m_server.isListening(); }

Q_SIGNALS:
    /// A second start of the application wants the window to be seen.
    void showRequested();

private:
    void accept();
    void read(QLocalSocket* socket);
    static void answer(QLocalSocket* socket, const Answer& answer);

    CommandRunner& m_runner;
    QLocalServer m_server;
};

} // namespace Kelvane
