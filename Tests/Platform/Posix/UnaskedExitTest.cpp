#include "Platform/Posix/UnaskedExit.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

/// Each row ends a process of its own.
class UnaskedExitTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anExitInTheMiddleSavesOnceAndIsNoFailure();
    void anExitAfterwardsIsLeftAlone();

private:
    enum class Moment { whileItLives, afterItsEnd };
    /// The exit status of a process that calls `exit` with 3 at that moment.
    int statusOf(Moment moment) const;
    QByteArray saved() const;

    QTemporaryDir m_folder;
    QString m_file = m_folder.filePath(u"saved"_s);
};

int UnaskedExitTest::statusOf(Moment moment) const {
    const pid_t child = fork();
    if (child == 0) {
        {
            const UnaskedExit unaskedExit([this] {
                QFile file(m_file);
                if (file.open(QIODevice::Append))
                    file.write("once ");
            });
            if (moment == Moment::whileItLives)
                std::exit(3);
        }
        std::exit(3);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

QByteArray UnaskedExitTest::saved() const {
    QFile file(m_file);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void UnaskedExitTest::anExitInTheMiddleSavesOnceAndIsNoFailure() {
    QFile::remove(m_file);
    QCOMPARE(statusOf(Moment::whileItLives), 0);
    QCOMPARE(saved(), QByteArray("once "));
}

void UnaskedExitTest::anExitAfterwardsIsLeftAlone() {
    QFile::remove(m_file);
    QCOMPARE(statusOf(Moment::afterItsEnd), 3);
    QCOMPARE(saved(), QByteArray());
}

QTEST_GUILESS_MAIN(UnaskedExitTest)
#include "UnaskedExitTest.moc"
