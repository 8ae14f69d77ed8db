#include "Support/PrivateDesktop.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 20'000;

/// Starts `program` and waits for the first line it says; nothing when it says none.
QByteArray firstLine(QProcess& process, const QString& program, const QStringList& arguments) {
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, arguments);
    if (!process.waitForStarted(patience))
        return {};
    while (!process.canReadLine() && process.waitForReadyRead(patience)) {
    }
    return process.readLine().trimmed();
}

void stop(std::unique_ptr<QProcess>& process) {
    if (!process)
        return;
    process->kill();
    process->waitForFinished(patience);
    process.reset();
}

} // namespace

PrivateDesktop::PrivateDesktop() {
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "XDG_SESSION_ID", "XDG_RUNTIME_DIR"})
        qunsetenv(variable);
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    // Nothing listens there; without an address the bus of the machine would be meant.
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=" + m_folder.filePath(u"none"_s).toLocal8Bit());
}

PrivateDesktop::~PrivateDesktop() {
    stopDisplay();
    stop(m_sessionBus);
    stop(m_systemBus);
}

bool PrivateDesktop::startDisplay() {
    m_display = std::make_unique<QProcess>();
    QStringList arguments = {u"-displayfd"_s, u"1"_s,       u"-noreset"_s, u"-nolisten"_s,
                             u"tcp"_s,        u"-screen"_s, u"0"_s,        u"1280x1024x24"_s};
    if (!m_displayNumber.isEmpty())
        arguments.prepend(u':' + QString::fromLatin1(m_displayNumber));
    const QByteArray number = firstLine(*m_display, u"Xvfb"_s, arguments);
    if (number.isEmpty()) {
        stopDisplay();
        return false;
    }
    m_displayNumber = number;
    qputenv("DISPLAY", ":" + number);
    return true;
}

void PrivateDesktop::stopDisplay() {
    if (!m_display)
        return;
    // Asked to end, it takes its lock file along, so that its number can be had again.
    m_display->terminate();
    m_display->waitForFinished(patience);
    m_display.reset();
}

bool PrivateDesktop::startBus(std::unique_ptr<QProcess>& bus, const char* name, const char* variable) {
    const QString path = m_folder.filePath(QLatin1StringView(name));
    QFile::remove(path);
    bus = std::make_unique<QProcess>();
    const QByteArray address =
        firstLine(*bus, u"dbus-daemon"_s,
                  {u"--session"_s, u"--nofork"_s, u"--print-address=1"_s, u"--address=unix:path=%1"_s.arg(path)});
    if (address.isEmpty()) {
        stop(bus);
        return false;
    }
    qputenv(variable, address);
    return true;
}

bool PrivateDesktop::startSessionBus() {
    return startBus(m_sessionBus, "session", "DBUS_SESSION_BUS_ADDRESS");
}

void PrivateDesktop::stopSessionBus() {
    stop(m_sessionBus);
}

bool PrivateDesktop::startSystemBus() {
    return startBus(m_systemBus, "system", "DBUS_SYSTEM_BUS_ADDRESS");
}

void PrivateDesktop::stopSystemBus() {
    stop(m_systemBus);
}

QString PrivateDesktop::makeBundle(const QString& folder, const QString& name, const QByteArray& identifier,
                                   const QString& program) {
    const QString contents = folder + u'/' + name + u".app/Contents"_s;
    const QString copy = contents + u"/MacOS/"_s + name;
    QDir().mkpath(contents + u"/MacOS"_s);
    QFile info(contents + u"/Info.plist"_s);
    if (!info.open(QIODevice::WriteOnly))
        return {};
    info.write("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>"
               "<key>CFBundleIdentifier</key><string>" +
               identifier + "</string></dict></plist>\n");
    return QFile::copy(program.isEmpty() ? QStandardPaths::findExecutable(u"sleep"_s) : program, copy) ? copy
                                                                                                       : QString();
}
