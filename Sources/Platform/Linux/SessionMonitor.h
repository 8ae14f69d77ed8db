#pragma once

#include <QObject>
#include <QString>
#include <QVariantMap>

#include <memory>

class QDBusServiceWatcher;

namespace Platform {

/// Hears over D-Bus that the screen is locked, that the machine sleeps and that another user takes over: the screen
/// savers on the session bus, logind on the system bus. Either bus may be missing, end and come back. Main thread only.
class SessionMonitor final : public QObject {
    Q_OBJECT

public:
    explicit SessionMonitor(QObject* parent = nullptr);
    ~SessionMonitor() override;

    /// Whether a locked screen would be heard of.
    bool isListening() const;
    /// Tries again what is missing. It may block for as long as the bus takes to greet.
    void reconnect();

Q_SIGNALS:
    void paused();
    void resumed();

private Q_SLOTS:
    void screenSaverChanged(bool active);
    void sessionLocked();
    void sessionUnlocked();
    void sleepChanged(bool begins);
    void sessionPropertiesChanged(const QString& interface, const QVariantMap& changed, const QStringList& invalidated);

private:
    void listenToSessionBus();
    void listenToSystemBus();
    void findLoginSession();
    void listenToLoginSession(const QString& path);

    /// Names of our own connections, empty without one.
    QString m_sessionBus;
    QString m_systemBus;
    QString m_loginSession;
    std::unique_ptr<QDBusServiceWatcher> m_loginService;
    bool m_hasListened = false;
};

} // namespace Platform
