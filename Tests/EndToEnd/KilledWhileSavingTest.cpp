#include "DockCore/UsageStore.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

/// A process that is killed while it saves leaves a file that reads, with everything that was saved before.
class KilledWhileSavingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theFileAlwaysReads();
};

void KilledWhileSavingTest::theFileAlwaysReads() {
    constexpr int kills = 200;
    constexpr int patience = 30'000;
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"usage.json"_s);
    QRandomGenerator random(2026);
    double before = 0;
    qsizetype saves = 0;
    for (int kill = 0; kill < kills; ++kill) {
        QProcess process;
        process.start(u"" SAVES_UNTIL_KILLED ""_s, {path});
        // The end comes at any moment after the first save, the second or the third, however long one takes.
        const qsizetype unharmed = 1 + random.bounded(3);
        QByteArray said;
        while (said.count('\n') < unharmed) {
            QVERIFY(process.waitForReadyRead(patience));
            said += process.readAllStandardOutput();
        }
        QTest::qWait(static_cast<int>(random.bounded(12)));
        process.kill();
        QVERIFY(process.waitForFinished(patience));
        said += process.readAllStandardOutput();

        const QList<QByteArray> lines = said.split('\n');
        const double promised = lines.at(lines.size() - 2).toDouble();
        QVERIFY(promised > before);
        saves += lines.size() - 1;

        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY2(QJsonDocument::fromJson(file.readAll()).isObject(), qPrintable(u"after kill %1"_s.arg(kill)));
        const DockCore::UsageStore usage(path);
        const double kept = usage.totals(DockCore::UsageWindow::month, QDateTime::currentDateTimeUtc())
                                .value(u"com.example.Mail"_s)
                                .seconds;
        // One save more may have come through unannounced.
        QVERIFY2(kept == promised || kept == promised + 10, qPrintable(u"%1, not %2"_s.arg(kept).arg(promised)));
        before = kept;
    }
    // What was begun and never finished does not pile up.
    QVERIFY(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size() <= kills + 1);
    qInfo("%lld saves, %lld files left", static_cast<long long>(saves),
          static_cast<long long>(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size()));
}

QTEST_GUILESS_MAIN(KilledWhileSavingTest)
#include "KilledWhileSavingTest.moc"
