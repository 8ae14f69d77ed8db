#include "Platform/QtProcesses.h"

#include "Platform/ProcessesContract.h"

#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include <csignal>
#include <sys/wait.h>

using namespace Qt::StringLiterals;

class QtProcessesTest : public ProcessesContract {
    Q_OBJECT

    class RealComputer : public Computer {
    public:
        DockCore::Processes& processes() override { return m_processes; }
        QString exitingProgram() override { return script("exiting", "exit \"$1\""); }
        QString killedProgram() override { return script("killed", "kill -KILL $$"); }
        QString missingProgram() override { return path("missing"); }

        QString path(const char* name) const { return m_directory.filePath(QString::fromUtf8(name)); }
        QString script(const char* name, const QByteArray& commands) {
            QFile file(path(name));
            const bool isOpen = file.open(QIODevice::WriteOnly);
            Q_ASSERT(isOpen);
            file.write("#!/bin/sh\n" + commands + "\n");
            file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
            return file.fileName();
        }
        QByteArray content(const char* name) const {
            QFile file(path(name));
            return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        }

    private:
        QTemporaryDir m_directory;
        Platform::QtProcesses m_processes;
    };
    std::unique_ptr<Computer> makeComputer() override { return std::make_unique<RealComputer>(); }

private Q_SLOTS:
    void argumentsArriveAsTheyAre() {
        RealComputer computer;
        const QString program = computer.script("list", "cd \"${0%/*}\" && printf '%s|' \"$@\" > seen");
        const QStringList arguments = {u"-x"_s,      u"a b"_s,       u""_s, u"\"quoted\" 'twice'"_s,
                                       u"$HOME *"_s, u"Кельване 😀"_s};
        QCOMPARE(computer.processes().run(program, arguments), std::optional(0));
        QCOMPARE(computer.content("seen"), (arguments.join(u'|') + u'|').toUtf8());
    }

    void theProgramHasEndedWhenTheStatusIsThere() {
        RealComputer computer;
        const QString program = computer.script("slow", "cd \"${0%/*}\"; sleep 0.1; echo done > seen; exit 5");
        QCOMPARE(computer.processes().run(program, {}), std::optional(5));
        QCOMPARE(computer.content("seen"), QByteArray("done\n"));
    }

    void standardOutputGoesNowhere() {
        RealComputer computer;
        // Both ends: what is written succeeds, and this process's own output is not what it goes to.
        const QString program = computer.script("loud", "echo loud && [ \"$(readlink /proc/$$/fd/1)\" = /dev/null ]");
        QCOMPARE(computer.processes().run(program, {}), std::optional(0));
    }

    void whatCannotBeStartedGivesNothing_data() {
        QTest::addColumn<QString>("kind");
        QTest::newRow("a folder") << u"folder"_s;
        QTest::newRow("a file that is no program") << u"plain"_s;
        QTest::newRow("a file whose interpreter is missing") << u"orphan"_s;
        QTest::newRow("no path at all") << u"none"_s;
    }
    void whatCannotBeStartedGivesNothing() {
        QFETCH(QString, kind);
        RealComputer computer;
        const QString orphan = computer.script("orphan", "");
        QFile file(orphan);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("#!/nowhere/interpreter\n");
        file.close();
        QFile plain(computer.script("plain", "exit 0"));
        plain.setPermissions(QFileDevice::ReadOwner);
        const QMap<QString, QString> paths = {
            {u"folder"_s, u"/tmp"_s}, {u"plain"_s, plain.fileName()}, {u"orphan"_s, orphan}, {u"none"_s, {}}};
        QCOMPARE(computer.processes().run(paths.value(kind), {}), std::nullopt);
    }

    void aFailureInsideTheShellIsAStatus() {
        RealComputer computer;
        QCOMPARE(computer.processes().run(u"/bin/sh"_s, {u"-c"_s, u"/nowhere/program 2>/dev/null"_s}),
                 std::optional(127));
    }

    void signalsThatThisProcessIgnoresOrBlocksReachTheProgram() {
        RealComputer computer;
        const auto before = std::signal(SIGPIPE, SIG_IGN);
        sigset_t blocked;
        sigset_t previous;
        sigemptyset(&blocked);
        sigaddset(&blocked, SIGTERM);
        pthread_sigmask(SIG_BLOCK, &blocked, &previous);
        const auto afterPipe = computer.processes().run(u"/bin/sh"_s, {u"-c"_s, u"kill -PIPE $$; exit 0"_s});
        const auto afterTerm = computer.processes().run(u"/bin/sh"_s, {u"-c"_s, u"kill -TERM $$; exit 0"_s});
        pthread_sigmask(SIG_SETMASK, &previous, nullptr);
        std::signal(SIGPIPE, before);
        QCOMPARE(afterPipe, std::nullopt);
        QCOMPARE(afterTerm, std::nullopt);
    }

    void severalThreadsGetTheirOwnStatus() {
        RealComputer computer;
        const QString program = computer.exitingProgram();
        QList<std::optional<int>> statuses(8);
        std::optional<int>* places = statuses.data();
        QList<QThread*> threads;
        for (int number = 0; number < 8; ++number) {
            threads.append(QThread::create([&computer, &program, places, number] {
                places[number] = computer.processes().run(program, {QString::number(number)});
            }));
            threads.last()->start();
        }
        for (QThread* thread : std::as_const(threads)) {
            thread->wait();
            delete thread;
        }
        for (int number = 0; number < 8; ++number) {
            QCOMPARE(statuses.at(number), std::optional(number));
        }
    }

    void noDeadProcessIsLeftBehind() {
        RealComputer computer;
        computer.processes().run(computer.exitingProgram(), {u"0"_s});
        computer.processes().run(computer.killedProgram(), {});
        computer.processes().run(computer.missingProgram(), {});
        QCOMPARE(waitpid(-1, nullptr, WNOHANG), -1);
        QCOMPARE(errno, ECHILD);
    }
};

QTEST_GUILESS_MAIN(QtProcessesTest)
#include "QtProcessesTest.moc"
