#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <array>
#include <csignal>

namespace Platform {

/// Turns the signals that ask a process to end (SIGTERM, SIGINT, SIGHUP) into one Qt signal on the main thread, so that
/// it can save and leave by itself. A signal that the parent has set to be ignored stays ignored. One a process; its
/// end brings the former handling back.
class TerminationSignals final : public QObject {
    Q_OBJECT

public:
    explicit TerminationSignals(QObject* parent = nullptr);
    ~TerminationSignals() override;

Q_SIGNALS:
    /// The process was asked to end; it may come more than once.
    void received(int signal);

private:
    void receive();

    static constexpr std::array handled = {SIGTERM, SIGINT, SIGHUP};
    std::array<int, 2> m_sockets;
    QSocketNotifier m_notifier;
    std::array<struct sigaction, handled.size()> m_former = {};
};

} // namespace Platform
