#include "Kelvane/Commands/InstanceLock.h"

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using Kelvane::InstanceLock;

class InstanceLockTest : public QObject {
    Q_OBJECT

private:
    void putWordlessFile(int secondsFromNow) {
        QFile file(m_folder.filePath(u"lock"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(
            file.setFileTime(QDateTime::currentDateTime().addSecs(secondsFromNow), QFileDevice::FileModificationTime));
    }

    QTemporaryDir m_folder;

private Q_SLOTS:
    void cleanup() { QFile::remove(m_folder.filePath(u"lock"_s)); }

    void oneAtATime() {
        InstanceLock first(m_folder.path());
        InstanceLock second(m_folder.path());
        QCOMPARE(first.tryAcquire(), InstanceLock::State::acquired);
        QCOMPARE(second.tryAcquire(), InstanceLock::State::busy);
        first.release();
        QCOMPARE(second.tryAcquire(), InstanceLock::State::acquired);
    }

    void aFolderThatTakesNoFileIsUnavailable() {
        InstanceLock lock(m_folder.filePath(u"missing"_s));
        QCOMPARE(lock.tryAcquire(), InstanceLock::State::unavailable);
    }

    void whatAKilledProcessLeft_data() {
        QTest::addColumn<int>("secondsFromNow");
        QTest::addColumn<InstanceLock::State>("state");
        QTest::newRow("a file without a word, made a minute ago, is taken over")
            << -60 << InstanceLock::State::acquired;
        QTest::newRow("a file without a word, made in the future, is taken over")
            << 3600 << InstanceLock::State::acquired;
        QTest::newRow("a file without a word, made just now, may yet be written") << 0 << InstanceLock::State::busy;
    }

    void whatAKilledProcessLeft() {
        QFETCH(int, secondsFromNow);
        QFETCH(InstanceLock::State, state);
        putWordlessFile(secondsFromNow);
        InstanceLock lock(m_folder.path());
        QCOMPARE(lock.tryAcquire(), state);
    }
};

QTEST_GUILESS_MAIN(InstanceLockTest)

#include "InstanceLockTest.moc"
