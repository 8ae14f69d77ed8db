#pragma once

#include <QCoreApplication>
#include <QProcess>
#include <QTest>

/// Runs the current test function or row once more in a process of its own, for what would end this one or change it
/// for good. The function asks `isChild` first and does the deed when it is one.
namespace ChildProcess {

constexpr auto mark = "KELVANE_TEST_CHILD";

struct Outcome {
    bool crashed = false;
    int status = 0;
    QString output;
};

inline bool isChild() {
    return qEnvironmentVariableIsSet(mark);
}

/// `wrapper` is a program and its arguments to put before the test program, or nothing.
inline Outcome run(const QStringList& wrapper = {}) {
    QStringList command = wrapper;
    command.append(QCoreApplication::applicationFilePath());
    command.append(QStringLiteral("-nocrashhandler"));
    const QString row = QString::fromUtf8(QTest::currentDataTag());
    const QString function = QString::fromLatin1(QTest::currentTestFunction());
    command.append(row.isEmpty() ? function : function + QLatin1Char(':') + row);
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1(mark), QStringLiteral("1"));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(command.takeFirst(), command);
    if (!process.waitForFinished(60000))
        return {true, -1, process.errorString()};
    return {process.exitStatus() == QProcess::CrashExit, process.exitCode(),
            QString::fromUtf8(process.readAllStandardOutput())};
}

} // namespace ChildProcess
