// The command line: arguments in, one operation of the model, text or JSON out. It asks the application that runs, and
// does the work itself when none does.

#include "DockCore/Storage/Paths.h"
#include "Kelvane/AppModel.h"
#include "Kelvane/Commands/CommandClient.h"
#include "Kelvane/Commands/CommandRunner.h"
#include "Kelvane/Commands/InstanceLock.h"
#include "Platform/Posix/Terminal.h"
#include "Platform/SystemServices.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

#include <cstdio>

using namespace Kelvane;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// A change of the Dock takes up to twenty seconds, and several may wait in a row.
constexpr auto answerTimeout = 120s;
/// How long another command may take before this one gives up waiting for its turn.
constexpr auto lockTimeout = 120s;
constexpr auto lockRetryInterval = 5ms;

void print(const QString& text, FILE* stream) {
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stream);
}

int finish(const Answer& answer) {
    print(answer.output, stdout);
    if (!answer.error.isEmpty())
        print(answer.error + u'\n', stderr);
    if (std::fflush(stdout) != 0) {
        print(u"The answer could not be written.\n"_s, stderr);
        return Answer::failed;
    }
    return answer.status;
}

Answer failed(const QString& sentence) {
    return {.status = Answer::failed, .error = sentence};
}

Answer runHere(const DockCore::Services& services, const DockCore::Paths& paths, const Command& command,
               Colour colour) {
    AppModel model(services, paths, nullptr, nullptr);
    CommandRunner runner(model);
    Answer answer;
    bool isDone = false;
    runner.run(command, colour, [&](const Answer& result) {
        answer = result;
        isDone = true;
        QCoreApplication::quit();
    });
    if (!isDone)
        QCoreApplication::exec();
    return answer;
}

/// Asks the running application, else takes its place, whichever is possible first.
Answer carryOut(const DockCore::Services& services, const Command& command, Colour colour) {
    const DockCore::Paths paths(services.folders);
    const QString socket = commandSocketPath(paths.support());
    const CommandRequest request{.arguments = QCoreApplication::arguments().mid(1), .colour = colour};
    InstanceLock lock(paths.support());
    const QDeadlineTimer deadline(lockTimeout);
    while (true) {
        const auto reply = CommandClient::ask(socket, request, Platform::Terminal::userID(), answerTimeout);
        if (const auto* answer = std::get_if<Answer>(&reply))
            return *answer;
        const auto silence = std::get<CommandClient::Silence>(reply);
        if (silence == CommandClient::Silence::late)
            return failed(u"Kelvane is running but has not answered in time."_s);
        if (silence == CommandClient::Silence::lost && !isRepeatable(command))
            return failed(u"Kelvane ended before it answered. See “kelvanectl status” for what became of the Dock."_s);
        if (lock.tryAcquire() != InstanceLock::State::busy)
            return runHere(services, paths, command, colour);
        if (deadline.hasExpired())
            return failed(u"Another command has been changing the Dock for too long. Try again later."_s);
        QThread::msleep(std::chrono::milliseconds(lockRetryInterval).count());
    }
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"kelvanectl"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(KELVANE_VERSION));
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.contains(u"--help") || arguments.contains(u"-h"))
        return finish({.output = commandHelp()});
    if (arguments.contains(u"--version") || arguments.contains(u"-v"))
        return finish({.output = u"kelvanectl %1\n"_s.arg(QCoreApplication::applicationVersion())});

    const auto command = parseCommand(arguments);
    if (const auto* mistake = std::get_if<CommandMistake>(&command))
        return finish({.status = Answer::mistaken, .error = mistake->sentence});

    Platform::SystemServices system;
    const Colour colour = Platform::Terminal::showsColours() ? Colour::terminal : Colour::none;
    return finish(carryOut(system.services(), std::get<Command>(command), colour));
}
