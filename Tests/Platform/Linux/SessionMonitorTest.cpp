#include "Platform/Linux/SessionMonitor.h"

#include "Support/PrivateDesktop.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

using namespace Qt::StringLiterals;
using Platform::SessionMonitor;

namespace {

constexpr int patience = 20'000;
const char* const sessionPath = "/org/freedesktop/login1/session/c1";

/// A session as logind names it.
struct NamedSession {
    QString id;
    QDBusObjectPath path;
};

} // namespace
Q_DECLARE_METATYPE(NamedSession)

namespace {

QDBusArgument& operator<<(QDBusArgument& argument, const NamedSession& session) {
    argument.beginStructure();
    argument << session.id << session.path;
    argument.endStructure();
    return argument;
}
const QDBusArgument& operator>>(const QDBusArgument& argument, NamedSession& session) {
    argument.beginStructure();
    argument >> session.id >> session.path;
    argument.endStructure();
    return argument;
}

/// A service on a bus that answers the questions of the monitor, whichever service it plays.
class StandInService : public QDBusVirtualObject {
public:
    StandInService(const QString& address, const QString& name)
        : m_name(u"stand-in-%1"_s.arg(++s_count))
        , m_bus(QDBusConnection::connectToBus(address, m_name)) {
        m_bus.registerVirtualObject(u"/"_s, this, QDBusConnection::SubPath);
        isThere = name.isEmpty() || m_bus.registerService(name);
    }
    ~StandInService() override { QDBusConnection::disconnectFromBus(m_name); }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        asked.append(message.member());
        if (message.member() == "GetActive"_L1)
            connection.send(message.createReply(isActive));
        else if (message.member() == "GetSession"_L1)
            connection.send(message.createReply(QVariant::fromValue(QDBusObjectPath(QLatin1StringView(sessionPath)))));
        else if (message.member() == "Get"_L1)
            connection.send(message.createReply(QVariant::fromValue(QDBusVariant(display))));
        else
            return false;
        return true;
    }
    void announce(const QString& path, const QString& interface, const QString& member,
                  const QVariantList& arguments = {}) {
        QDBusMessage signal = QDBusMessage::createSignal(path, interface, member);
        signal.setArguments(arguments);
        m_bus.send(signal);
    }

    bool isThere = false;
    bool isActive = false;
    QVariant display = QVariant::fromValue(NamedSession{u"c1"_s, QDBusObjectPath(QLatin1StringView(sessionPath))});
    QStringList asked;

private:
    inline static int s_count = 0;
    QString m_name;
    QDBusConnection m_bus;
};

} // namespace

class SessionMonitorTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void screenSaversPauseAndResume_data();
    void screenSaversPauseAndResume();
    void aScreenThatIsLockedAtTheStartPauses();
    void theLoginServicePausesAndResumes_data();
    void theLoginServicePausesAndResumes();
    void otherNewsOfTheLoginServiceAreIgnored_data();
    void otherNewsOfTheLoginServiceAreIgnored();
    void nobodyElseSpeaksForTheLoginService();
    void aLoginServiceThatAppearsLaterIsHeard();
    void anAnswerOfAnotherKindIsNoSession();
    void aSystemBusThatReturnsIsHeardAgain();
    void aSessionBusThatReturnsIsHeardAgain();
    void withoutAnyBusNothingHappens();
    void anAddressWithNobodyBehindItIsNoBus();

private:
    static QString sessionBus() { return qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"); }
    static QString systemBus() { return qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS"); }

    std::unique_ptr<PrivateDesktop> m_desktop;
};

namespace {

const QString loginService = u"org.freedesktop.login1"_s;
const QString loginPath = u"/org/freedesktop/login1"_s;
const QString managerInterface = u"org.freedesktop.login1.Manager"_s;
const QString sessionInterface = u"org.freedesktop.login1.Session"_s;
const QString propertiesInterface = u"org.freedesktop.DBus.Properties"_s;

QVariantList activeProperty(const QString& interface, bool active) {
    return {interface, QVariantMap{{u"Active"_s, active}}, QStringList()};
}

} // namespace

void SessionMonitorTest::initTestCase() {
    if (QStandardPaths::findExecutable(u"dbus-daemon"_s).isEmpty())
        QSKIP("dbus-daemon is needed to make buses");
    qDBusRegisterMetaType<NamedSession>();
}

void SessionMonitorTest::init() {
    m_desktop.reset();
    m_desktop = std::make_unique<PrivateDesktop>();
    QVERIFY(m_desktop->startSessionBus());
}

void SessionMonitorTest::screenSaversPauseAndResume_data() {
    QTest::addColumn<QString>("service");
    QTest::addColumn<QString>("path");
    QTest::newRow("the freedesktop screen saver")
        << u"org.freedesktop.ScreenSaver"_s << u"/org/freedesktop/ScreenSaver"_s;
    QTest::newRow("the same under its older path") << u"org.freedesktop.ScreenSaver"_s << u"/ScreenSaver"_s;
    QTest::newRow("the GNOME screen saver") << u"org.gnome.ScreenSaver"_s << u"/org/gnome/ScreenSaver"_s;
}

void SessionMonitorTest::screenSaversPauseAndResume() {
    QFETCH(QString, service);
    QFETCH(QString, path);
    StandInService locker(sessionBus(), service);
    QVERIFY(locker.isThere);
    SessionMonitor monitor;
    QVERIFY(monitor.isListening());
    QSignalSpy paused(&monitor, &SessionMonitor::paused);
    QSignalSpy resumed(&monitor, &SessionMonitor::resumed);
    QTRY_COMPARE_WITH_TIMEOUT(locker.asked, QStringList{u"GetActive"_s}, patience);
    locker.announce(path, service, u"ActiveChanged"_s, {true});
    QVERIFY(paused.wait(patience));
    QCOMPARE(resumed.count(), 0);
    locker.announce(path, service, u"ActiveChanged"_s, {false});
    QVERIFY(resumed.wait(patience));
    QCOMPARE(paused.count(), 1);
    QCOMPARE(resumed.count(), 1);
}

void SessionMonitorTest::aScreenThatIsLockedAtTheStartPauses() {
    StandInService locker(sessionBus(), u"org.gnome.ScreenSaver"_s);
    locker.isActive = true;
    SessionMonitor monitor;
    QSignalSpy paused(&monitor, &SessionMonitor::paused);
    QVERIFY(paused.wait(patience));
}

void SessionMonitorTest::theLoginServicePausesAndResumes_data() {
    QTest::addColumn<QByteArray>("sessionID");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("interface");
    QTest::addColumn<QString>("pause");
    QTest::addColumn<QVariantList>("pauseArguments");
    QTest::addColumn<QString>("resume");
    QTest::addColumn<QVariantList>("resumeArguments");
    const QString session = QLatin1StringView(sessionPath);
    const QVariantList none;
    QTest::newRow("the session is locked and unlocked")
        << QByteArray("c1") << session << sessionInterface << u"Lock"_s << none << u"Unlock"_s << none;
    QTest::newRow("the display's session, for a process in none")
        << QByteArray() << session << sessionInterface << u"Lock"_s << none << u"Unlock"_s << none;
    QTest::newRow("the machine sleeps and wakes")
        << QByteArray("c1") << loginPath << managerInterface << u"PrepareForSleep"_s << QVariantList{true}
        << u"PrepareForSleep"_s << QVariantList{false};
    QTest::newRow("another user takes over and gives back")
        << QByteArray("c1") << session << propertiesInterface << u"PropertiesChanged"_s
        << activeProperty(sessionInterface, false) << u"PropertiesChanged"_s << activeProperty(sessionInterface, true);
}

void SessionMonitorTest::theLoginServicePausesAndResumes() {
    QFETCH(QByteArray, sessionID);
    QFETCH(QString, path);
    QFETCH(QString, interface);
    QFETCH(QString, pause);
    QFETCH(QVariantList, pauseArguments);
    QFETCH(QString, resume);
    QFETCH(QVariantList, resumeArguments);
    QVERIFY(m_desktop->startSystemBus());
    if (!sessionID.isEmpty())
        qputenv("XDG_SESSION_ID", sessionID);
    StandInService login(systemBus(), loginService);
    QVERIFY(login.isThere);
    SessionMonitor monitor;
    QSignalSpy paused(&monitor, &SessionMonitor::paused);
    QSignalSpy resumed(&monitor, &SessionMonitor::resumed);
    const QString question = sessionID.isEmpty() ? u"Get"_s : u"GetSession"_s;
    QTRY_COMPARE_WITH_TIMEOUT(login.asked, QStringList{question}, patience);
    // The answer is on its way; the monitor listens once it has come.
    QTRY_VERIFY_WITH_TIMEOUT((login.announce(path, interface, pause, pauseArguments), !paused.isEmpty()), patience);
    QCOMPARE(resumed.count(), 0);
    login.announce(path, interface, resume, resumeArguments);
    QVERIFY(resumed.wait(patience));
    QCOMPARE(resumed.count(), 1);
}

void SessionMonitorTest::otherNewsOfTheLoginServiceAreIgnored_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("interface");
    QTest::addColumn<QString>("member");
    QTest::addColumn<QVariantList>("arguments");
    const QString session = QLatin1StringView(sessionPath);
    QTest::newRow("the session of another user is locked")
        << u"/org/freedesktop/login1/session/c2"_s << sessionInterface << u"Lock"_s << QVariantList();
    QTest::newRow("another property of the session")
        << session << propertiesInterface << u"PropertiesChanged"_s
        << QVariantList{sessionInterface, QVariantMap{{u"IdleHint"_s, true}}, QStringList()};
    QTest::newRow("the same property of something else")
        << session << propertiesInterface << u"PropertiesChanged"_s << activeProperty(u"org.example.Other"_s, false);
    QTest::newRow("a sleep without its argument")
        << loginPath << managerInterface << u"PrepareForSleep"_s << QVariantList();
    QTest::newRow("a sleep with an argument of another kind")
        << loginPath << managerInterface << u"PrepareForSleep"_s << QVariantList{u"true"_s};
}

void SessionMonitorTest::otherNewsOfTheLoginServiceAreIgnored() {
    QFETCH(QString, path);
    QFETCH(QString, interface);
    QFETCH(QString, member);
    QFETCH(QVariantList, arguments);
    QVERIFY(m_desktop->startSystemBus());
    StandInService login(systemBus(), loginService);
    SessionMonitor monitor;
    QSignalSpy paused(&monitor, &SessionMonitor::paused);
    QSignalSpy resumed(&monitor, &SessionMonitor::resumed);
    const QString session = QLatin1StringView(sessionPath);
    QTRY_VERIFY_WITH_TIMEOUT((login.announce(session, sessionInterface, u"Unlock"_s), !resumed.isEmpty()), patience);
    login.announce(path, interface, member, arguments);
    // What comes after it is heard, so that one was heard before.
    const auto before = resumed.count();
    login.announce(session, sessionInterface, u"Unlock"_s);
    QTRY_VERIFY_WITH_TIMEOUT(resumed.count() > before, patience);
    QCOMPARE(paused.count(), 0);
}

void SessionMonitorTest::nobodyElseSpeaksForTheLoginService() {
    QVERIFY(m_desktop->startSystemBus());
    StandInService login(systemBus(), loginService);
    StandInService stranger(systemBus(), QString());
    SessionMonitor monitor;
    QSignalSpy paused(&monitor, &SessionMonitor::paused);
    QSignalSpy resumed(&monitor, &SessionMonitor::resumed);
    stranger.announce(loginPath, managerInterface, u"PrepareForSleep"_s, {true});
    // Long enough for a stranger who was listened to to be heard.
    QTRY_VERIFY_WITH_TIMEOUT(
        (login.announce(loginPath, managerInterface, u"PrepareForSleep"_s, {false}), resumed.count() >= 2), patience);
    QCOMPARE(paused.count(), 0);
}

void SessionMonitorTest::aLoginServiceThatAppearsLaterIsHeard() {
    QVERIFY(m_desktop->startSystemBus());
    SessionMonitor monitor;
    QSignalSpy paused(&monitor, &SessionMonitor::paused);
    QCoreApplication::processEvents();
    StandInService login(systemBus(), loginService);
    const QString session = QLatin1StringView(sessionPath);
    QTRY_VERIFY_WITH_TIMEOUT((login.announce(session, sessionInterface, u"Lock"_s), !paused.isEmpty()), patience);
}

void SessionMonitorTest::anAnswerOfAnotherKindIsNoSession() {
    QVERIFY(m_desktop->startSystemBus());
    StandInService login(systemBus(), loginService);
    login.display = u"c1"_s;
    SessionMonitor monitor;
    QSignalSpy paused(&monitor, &SessionMonitor::paused);
    QSignalSpy resumed(&monitor, &SessionMonitor::resumed);
    QTRY_COMPARE_WITH_TIMEOUT(login.asked, QStringList{u"Get"_s}, patience);
    login.announce(QLatin1StringView(sessionPath), sessionInterface, u"Lock"_s);
    login.announce(loginPath, managerInterface, u"PrepareForSleep"_s, {false});
    QVERIFY(resumed.wait(patience));
    QCOMPARE(paused.count(), 0);
}

void SessionMonitorTest::aSystemBusThatReturnsIsHeardAgain() {
    QVERIFY(m_desktop->startSystemBus());
    SessionMonitor monitor;
    QSignalSpy paused(&monitor, &SessionMonitor::paused);
    m_desktop->stopSystemBus();
    QVERIFY(m_desktop->startSystemBus());
    StandInService login(systemBus(), loginService);
    QTRY_VERIFY_WITH_TIMEOUT((monitor.reconnect(),
                              login.announce(loginPath, managerInterface, u"PrepareForSleep"_s, {true}),
                              !paused.isEmpty()),
                             patience);
}

void SessionMonitorTest::aSessionBusThatReturnsIsHeardAgain() {
    SessionMonitor monitor;
    QSignalSpy paused(&monitor, &SessionMonitor::paused);
    QSignalSpy resumed(&monitor, &SessionMonitor::resumed);
    m_desktop->stopSessionBus();
    QTRY_VERIFY_WITH_TIMEOUT(!monitor.isListening(), patience);
    monitor.reconnect();
    QVERIFY(!monitor.isListening());
    QVERIFY(m_desktop->startSessionBus());
    StandInService locker(sessionBus(), u"org.freedesktop.ScreenSaver"_s);
    locker.isActive = true;
    monitor.reconnect();
    QVERIFY(monitor.isListening());
    // An unlocking may have been missed; a lock that lasts is asked for.
    QCOMPARE(resumed.count(), 1);
    QCOMPARE(paused.count(), 0);
    QVERIFY(paused.wait(patience));
    monitor.reconnect();
    QCOMPARE(resumed.count(), 1);
}

void SessionMonitorTest::withoutAnyBusNothingHappens() {
    m_desktop->stopSessionBus();
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    SessionMonitor monitor;
    QVERIFY(!monitor.isListening());
    monitor.reconnect();
    QVERIFY(!monitor.isListening());
}

void SessionMonitorTest::anAddressWithNobodyBehindItIsNoBus() {
    for (const char* address : {"unix:path=/nowhere/at/all", "nonsense", "unix:", "tcp:host=127.0.0.1,port=1"}) {
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        const SessionMonitor monitor;
        QVERIFY(!monitor.isListening());
    }
}

QTEST_GUILESS_MAIN(SessionMonitorTest)
#include "SessionMonitorTest.moc"
