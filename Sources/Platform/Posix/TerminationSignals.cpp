#include "Platform/Posix/TerminationSignals.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace Platform {

namespace {

/// The end that the handler writes to; the only thing that it may touch besides errno.
volatile std::sig_atomic_t handlerSocket = -1;

extern "C" void noteSignal(int signal) {
    const int kept = errno;
    const auto byte = static_cast<unsigned char>(signal);
    // A full pipe already says what there is to say.
    [[maybe_unused]] const auto written = write(handlerSocket, &byte, 1);
    errno = kept;
}

std::array<int, 2> makeSockets() {
    std::array<int, 2> sockets = {-1, -1};
    if (socketpair(AF_UNIX, SOCK_STREAM, 0, sockets.data()) != 0)
        qFatal("no socket pair for signals");
    for (const int socket : sockets) {
        fcntl(socket, F_SETFD, FD_CLOEXEC);
        fcntl(socket, F_SETFL, O_NONBLOCK);
    }
    return sockets;
}

} // namespace

TerminationSignals::TerminationSignals(QObject* parent)
    : QObject(parent)
    , m_sockets(makeSockets())
    , m_notifier(m_sockets[1], QSocketNotifier::Read) {
    Q_ASSERT_X(handlerSocket == -1, "TerminationSignals", "there is one a process");
    connect(&m_notifier, &QSocketNotifier::activated, this, &TerminationSignals::receive);
    handlerSocket = m_sockets[0];
    struct sigaction action = {};
    action.sa_handler = noteSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (size_t i = 0; i < handled.size(); ++i) {
        sigaction(handled[i], nullptr, &m_former[i]);
        if (m_former[i].sa_handler != SIG_IGN)
            sigaction(handled[i], &action, nullptr);
    }
}

TerminationSignals::~TerminationSignals() {
    for (size_t i = 0; i < handled.size(); ++i)
        sigaction(handled[i], &m_former[i], nullptr);
    handlerSocket = -1;
    m_notifier.setEnabled(false);
    for (const int socket : m_sockets)
        close(socket);
}

void TerminationSignals::receive() {
    unsigned char signal = 0;
    while (read(m_sockets[1], &signal, 1) == 1)
        Q_EMIT received(signal);
}

} // namespace Platform
