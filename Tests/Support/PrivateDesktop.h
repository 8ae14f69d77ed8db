#pragma once

#include <QByteArray>
#include <QProcess>
#include <QTemporaryDir>

#include <memory>

/// An X server and buses of a test's own, which nobody else sees and which end with it. While it lives, the environment
/// of this process points at them; before that it is left without any.
class PrivateDesktop {
public:
    PrivateDesktop();
    ~PrivateDesktop();

    /// Starts the X server, the second time under the same display number; false where there is none to start.
    bool startDisplay();
    void stopDisplay();
    bool startSessionBus();
    void stopSessionBus();
    bool startSystemBus();
    void stopSystemBus();

    /// A bundle that holds a copy of a real program, by default one that only waits; gives the copy's path.
    static QString makeBundle(const QString& folder, const QString& name, const QByteArray& identifier,
                              const QString& program = {});

private:
    bool startBus(std::unique_ptr<QProcess>& bus, const char* name, const char* variable);

    QTemporaryDir m_folder;
    QByteArray m_displayNumber;
    std::unique_ptr<QProcess> m_display;
    std::unique_ptr<QProcess> m_sessionBus;
    std::unique_ptr<QProcess> m_systemBus;
};
