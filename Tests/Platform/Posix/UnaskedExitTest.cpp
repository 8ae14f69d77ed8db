#include "Platform/Posix/UnaskedExit.h"

#include "Support/Files.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

const QString inTheMiddle = u"--exit-in-the-middle"_s;
const QString afterwards = u"--exit-afterwards"_s;

/// What this program does as the other process: saves into `file`, and calls `exit` with 3 at that moment.
[[noreturn]] void leave(const QString& moment, const QString& file) {
    {
        const UnaskedExit unaskedExit([&file] {
            QFile saved(file);
            if (saved.open(QIODevice::Append))
                saved.write("once ");
        });
        if (moment == inTheMiddle)
            std::exit(3);
    }
    std::exit(3);
}

} // namespace

class UnaskedExitTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anExitInTheMiddleSavesOnceAndIsNoFailure();
    void anExitAfterwardsIsLeftAlone();

private:
    /// The exit status of a process that leaves at that moment.
    int statusOf(const QString& moment) const {
        return QProcess::execute(QCoreApplication::applicationFilePath(), {moment, m_file});
    }
    QByteArray saved() const { return Files::contentOf(m_file); }

    QTemporaryDir m_folder;
    QString m_file = m_folder.filePath(u"saved"_s);
};

void UnaskedExitTest::anExitInTheMiddleSavesOnceAndIsNoFailure() {
    QFile::remove(m_file);
    QCOMPARE(statusOf(inTheMiddle), 0);
    QCOMPARE(saved(), QByteArray("once "));
}

void UnaskedExitTest::anExitAfterwardsIsLeftAlone() {
    QFile::remove(m_file);
    QCOMPARE(statusOf(afterwards), 3);
    QCOMPARE(saved(), QByteArray());
}

int main(int argc, char** argv) {
    if (argc == 3 && QString::fromLocal8Bit(argv[1]).startsWith(u"--exit"))
        leave(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]));
    const QCoreApplication application(argc, argv);
    UnaskedExitTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "UnaskedExitTest.moc"
