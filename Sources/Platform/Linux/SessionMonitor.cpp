#include "Platform/Linux/SessionMonitor.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

using namespace Qt::StringLiterals;

namespace Platform {

namespace {

constexpr auto loginService = "org.freedesktop.login1"_L1;
constexpr auto loginManagerPath = "/org/freedesktop/login1"_L1;
constexpr auto loginManager = "org.freedesktop.login1.Manager"_L1;
constexpr auto loginSession = "org.freedesktop.login1.Session"_L1;
constexpr auto properties = "org.freedesktop.DBus.Properties"_L1;

/// A screen saver and where it answers; its signals are taken from anywhere, since desktops differ in their paths.
struct ScreenSaver {
    QString service;
    QString path;
};
const QList<ScreenSaver>& screenSavers() {
    static const QList<ScreenSaver> known = {{u"org.freedesktop.ScreenSaver"_s, u"/org/freedesktop/ScreenSaver"_s},
                                             {u"org.gnome.ScreenSaver"_s, u"/org/gnome/ScreenSaver"_s}};
    return known;
}

/// A connection is never used again once its bus has gone, so each has a name of its own.
QString freshName() {
    static int count = 0;
    return u"kelvane-session-monitor-%1"_s.arg(++count);
}

bool isConnected(const QString& name) {
    return !name.isEmpty() && QDBusConnection(name).isConnected();
}

void close(QString& name) {
    if (!name.isEmpty())
        QDBusConnection::disconnectFromBus(name);
    name.clear();
}

/// Opens the bus at `address` unless it is open; true when it was opened now.
bool open(QString& name, const QString& address) {
    if (address.isEmpty() || isConnected(name))
        return false;
    close(name);
    name = freshName();
    if (QDBusConnection::connectToBus(address, name).isConnected())
        return true;
    close(name);
    return false;
}

// The library's own way to the buses remembers the first answer, and without a session bus it would start one on which
// nobody speaks.

QString sessionBusAddress() {
    const QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !address.isEmpty() || folder.isEmpty() ? address : "unix:path="_L1 + folder + "/bus"_L1;
}

QString systemBusAddress() {
    return qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS", u"unix:path=/var/run/dbus/system_bus_socket"_s);
}

QDBusMessage question(const QString& service, const QString& path, const QString& interface, const QString& method,
                      const QVariantList& arguments = {}) {
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, interface, method);
    message.setAutoStartService(false);
    message.setArguments(arguments);
    return message;
}

} // namespace

SessionMonitor::SessionMonitor(QObject* parent)
    : QObject(parent) {
    reconnect();
}

SessionMonitor::~SessionMonitor() {
    close(m_sessionBus);
    close(m_systemBus);
}

bool SessionMonitor::isListening() const {
    return isConnected(m_sessionBus);
}

void SessionMonitor::reconnect() {
    if (open(m_sessionBus, sessionBusAddress())) {
        // The end of a lock may have been missed; whether one lasts is asked next.
        if (m_hasListened)
            Q_EMIT resumed();
        m_hasListened = true;
        listenToSessionBus();
    }
    if (open(m_systemBus, systemBusAddress()))
        listenToSystemBus();
}

void SessionMonitor::listenToSessionBus() {
    QDBusConnection bus(m_sessionBus);
    for (const ScreenSaver& saver : screenSavers()) {
        bus.connect({}, {}, saver.service, u"ActiveChanged"_s, this, SLOT(screenSaverChanged(bool)));
        auto* watcher = new QDBusPendingCallWatcher(
            bus.asyncCall(question(saver.service, saver.path, saver.service, u"GetActive"_s)), this);
        connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* finished) {
            const QDBusPendingReply<bool> reply = *finished;
            if (reply.isValid() && reply.value())
                Q_EMIT paused();
            finished->deleteLater();
        });
    }
}

void SessionMonitor::listenToSystemBus() {
    QDBusConnection bus(m_systemBus);
    bus.connect(loginService, loginManagerPath, loginManager, u"PrepareForSleep"_s, this, SLOT(sleepChanged(bool)));
    m_loginSession.clear();
    m_loginService =
        std::make_unique<QDBusServiceWatcher>(loginService, bus, QDBusServiceWatcher::WatchForRegistration);
    connect(m_loginService.get(), &QDBusServiceWatcher::serviceRegistered, this, &SessionMonitor::findLoginSession);
    findLoginSession();
}

void SessionMonitor::findLoginSession() {
    QDBusConnection bus(m_systemBus);
    const QString id = qEnvironmentVariable("XDG_SESSION_ID");
    // A process that the user's service manager started is in no session; the user's display then names it.
    const QDBusMessage message = id.isEmpty()
                                     ? question(loginService, u"/org/freedesktop/login1/user/self"_s, properties,
                                                u"Get"_s, {u"org.freedesktop.login1.User"_s, u"Display"_s})
                                     : question(loginService, loginManagerPath, loginManager, u"GetSession"_s, {id});
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* finished) {
        finished->deleteLater();
        const QDBusMessage reply = finished->reply();
        if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
            return;
        const QVariant answer = reply.arguments().constFirst();
        if (answer.canConvert<QDBusObjectPath>()) {
            listenToLoginSession(answer.value<QDBusObjectPath>().path());
        } else if (answer.canConvert<QDBusVariant>()) {
            const QVariant display = answer.value<QDBusVariant>().variant();
            if (!display.canConvert<QDBusArgument>())
                return;
            const auto argument = display.value<QDBusArgument>();
            if (argument.currentSignature() != "(so)"_L1)
                return;
            QString name;
            QDBusObjectPath path;
            argument.beginStructure();
            argument >> name >> path;
            argument.endStructure();
            listenToLoginSession(path.path());
        }
    });
}

void SessionMonitor::listenToLoginSession(const QString& path) {
    // The path stays the same when the service starts again.
    if (path.isEmpty() || path == "/"_L1 || path == m_loginSession)
        return;
    m_loginSession = path;
    QDBusConnection bus(m_systemBus);
    bus.connect(loginService, path, loginSession, u"Lock"_s, this, SLOT(sessionLocked()));
    bus.connect(loginService, path, loginSession, u"Unlock"_s, this, SLOT(sessionUnlocked()));
    bus.connect(loginService, path, properties, u"PropertiesChanged"_s, this,
                SLOT(sessionPropertiesChanged(QString, QVariantMap, QStringList)));
}

void SessionMonitor::screenSaverChanged(bool active) {
    if (active)
        Q_EMIT paused();
    else
        Q_EMIT resumed();
}

void SessionMonitor::sessionLocked() {
    Q_EMIT paused();
}

void SessionMonitor::sessionUnlocked() {
    Q_EMIT resumed();
}

void SessionMonitor::sleepChanged(bool begins) {
    if (begins)
        Q_EMIT paused();
    else
        Q_EMIT resumed();
}

void SessionMonitor::sessionPropertiesChanged(const QString& interface, const QVariantMap& changed,
                                              const QStringList&) {
    const auto active = changed.constFind(u"Active"_s);
    if (interface != loginSession || active == changed.cend())
        return;
    if (active->toBool())
        Q_EMIT resumed();
    else
        Q_EMIT paused();
}

} // namespace Platform
