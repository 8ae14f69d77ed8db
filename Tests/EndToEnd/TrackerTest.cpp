#include "DockCore/UsageStore.h"
#include "Support/PrivateDesktop.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
constexpr int patience = 20'000;
/// The longest that a tick may take, with the tolerance of its timer.
constexpr double tick = 10.6;

/// Ends a process when a test leaves it, however it does.
class Program : public QProcess {
public:
    ~Program() override {
        kill();
        waitForFinished(patience);
    }

    /// Starts it; what it says first, or nothing.
    QByteArray start(const QString& program, const QStringList& arguments = {}) {
        QProcess::start(program, arguments);
        while (!canReadLine() && waitForReadyRead(patience)) {
        }
        return readLine().trimmed();
    }

    /// Asks it to end; its last words.
    QByteArray stop() {
        terminate();
        waitForFinished(patience);
        return readAllStandardOutput().trimmed();
    }
};

/// Whether a program does what it is asked without a complaint.
bool run(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished(patience) && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0 && process.readAllStandardError().isEmpty();
}

void seconds(int count) {
    QTest::qWait(count * 1000);
}

} // namespace

/// Real programs in real bundles take turns before a real X server and window manager, and real time passes.
class TrackerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void whatTookTurnsInFrontIsCredited();
    void aLockedScreenStopsTheCredit();
    void everySignalSavesAndLeavesWell_data();
    void everySignalSavesAndLeavesWell();
    void withoutADesktopItRunsAndLeavesWell();
    void anIdleProcessWakesOncePerTick();

private:
    /// A program in a bundle of its own, with its window in front; the window's number.
    QByteArray show(Program& program, const QString& name);
    void bringToFront(const QByteArray& window);
    static void announceLock(const char* active);
    double recorded(const QString& name) const;
    qint64 activations(const QString& name) const;
    DockCore::DayUsage today() const;

    std::unique_ptr<PrivateDesktop> m_desktop;
    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<Program> m_windowManager;
};

void TrackerTest::initTestCase() {
    qputenv("TZ", "UTC");
    for (const QString& program : {u"Xvfb"_s, u"openbox"_s, u"dbus-daemon"_s, u"dbus-send"_s, u"xdotool"_s})
        if (QStandardPaths::findExecutable(program).isEmpty())
            QSKIP("Xvfb, openbox, xdotool and the D-Bus programs are needed to make a desktop");
}

void TrackerTest::init() {
    m_desktop = std::make_unique<PrivateDesktop>();
    m_home = std::make_unique<QTemporaryDir>();
    qputenv("HOME", m_home->path().toLocal8Bit());
    qputenv("KELVANE_HOME", m_home->path().toLocal8Bit());
    QVERIFY(m_desktop->startDisplay());
    QVERIFY(m_desktop->startSessionBus());
    m_windowManager = std::make_unique<Program>();
    m_windowManager->setStandardErrorFile(QProcess::nullDevice());
    m_windowManager->QProcess::start(u"openbox"_s, {u"--sm-disable"_s});
    QVERIFY(m_windowManager->waitForStarted(patience));
    // The window manager is there once it answers.
    QTRY_VERIFY_WITH_TIMEOUT(run(u"xdotool"_s, {u"get_desktop"_s}), patience);
}

void TrackerTest::cleanup() {
    m_windowManager.reset();
    m_desktop.reset();
}

QByteArray TrackerTest::show(Program& program, const QString& name) {
    const QString executable =
        PrivateDesktop::makeBundle(m_home->path(), name, "com.example." + name.toUtf8(), u"" LITTLE_WINDOW ""_s);
    const QByteArray window = program.start(executable);
    bringToFront(window);
    return window;
}

void TrackerTest::bringToFront(const QByteArray& window) {
    const auto isInFront = [&window] {
        QProcess process;
        process.start(u"xdotool"_s, {u"getactivewindow"_s});
        process.waitForFinished(patience);
        return process.readAllStandardOutput().trimmed() == window;
    };
    // A window that was made just now may not be managed yet.
    QTRY_VERIFY_WITH_TIMEOUT(
        isInFront() || (run(u"xdotool"_s, {u"windowactivate"_s, QString::fromLatin1(window)}), false), patience);
}

void TrackerTest::announceLock(const char* active) {
    QVERIFY(run(u"dbus-send"_s, {u"--session"_s, u"--type=signal"_s, u"/org/gnome/ScreenSaver"_s,
                                 u"org.gnome.ScreenSaver.ActiveChanged"_s, "boolean:"_L1 + QLatin1StringView(active)}));
}

DockCore::DayUsage TrackerTest::today() const {
    // A test that runs across midnight finds its time on two days.
    const DockCore::UsageStore usage(m_home->filePath(u"usage.json"_s));
    DockCore::DayUsage sum;
    for (const QString& key : DockCore::UsageStore::keys(2, QDateTime::currentDateTimeUtc())) {
        const auto day = usage.day(key).value_or(DockCore::DayUsage());
        for (auto entry = day.seconds.cbegin(); entry != day.seconds.cend(); ++entry)
            sum.seconds[entry.key()] += entry.value();
        for (auto entry = day.activations.cbegin(); entry != day.activations.cend(); ++entry)
            sum.activations[entry.key()] += entry.value();
    }
    return sum;
}

double TrackerTest::recorded(const QString& name) const {
    return today().seconds.value(u"com.example."_s + name);
}

qint64 TrackerTest::activations(const QString& name) const {
    return today().activations.value(u"com.example."_s + name);
}

void TrackerTest::whatTookTurnsInFrontIsCredited() {
    Program recorder;
    QCOMPARE(recorder.start(u"" USAGE_RECORDER ""_s), "ready");
    QElapsedTimer clock;
    Program mail;
    Program notes;
    clock.start();
    const QByteArray mailWindow = show(mail, u"Mail"_s);
    seconds(23);
    const qint64 mailFirst = clock.restart();
    const QByteArray notesWindow = show(notes, u"Notes"_s);
    seconds(17);
    const qint64 notesFirst = clock.restart();
    bringToFront(mailWindow);
    seconds(12);
    const qint64 mailSecond = clock.elapsed();
    recorder.stop();
    QCOMPARE(recorder.exitStatus(), QProcess::NormalExit);
    QCOMPARE(recorder.exitCode(), 0);

    const double inMail = static_cast<double>(mailFirst + mailSecond) / 1000;
    const double inNotes = static_cast<double>(notesFirst) / 1000;
    // A tick gives its whole length to who is in front when it ends, and what follows the last tick is not credited.
    QVERIFY2(qAbs(recorded(u"Notes"_s) - inNotes) <= tick, qPrintable(QString::number(recorded(u"Notes"_s))));
    QVERIFY2(qAbs(recorded(u"Mail"_s) - inMail) <= 2 * tick, qPrintable(QString::number(recorded(u"Mail"_s))));
    const double total = recorded(u"Notes"_s) + recorded(u"Mail"_s);
    QVERIFY2(total <= inMail + inNotes + tick && total >= inMail + inNotes - tick, qPrintable(QString::number(total)));
    QCOMPARE(activations(u"Mail"_s), 2);
    QCOMPARE(activations(u"Notes"_s), 1);
    QCOMPARE(today().seconds.size(), 2);
}

void TrackerTest::aLockedScreenStopsTheCredit() {
    Program recorder;
    QCOMPARE(recorder.start(u"" USAGE_RECORDER ""_s), "ready");
    Program mail;
    show(mail, u"Mail"_s);
    announceLock("true");
    seconds(33);
    announceLock("false");
    seconds(13);
    recorder.stop();
    QCOMPARE(recorder.exitCode(), 0);
    // Only what came after the unlocking counts, and not all of that was ticked off.
    QVERIFY2(recorded(u"Mail"_s) > 1, qPrintable(QString::number(recorded(u"Mail"_s))));
    QVERIFY2(recorded(u"Mail"_s) <= 14, qPrintable(QString::number(recorded(u"Mail"_s))));
}

void TrackerTest::everySignalSavesAndLeavesWell_data() {
    QTest::addColumn<QString>("signal");
    QTest::newRow("the session ends") << u"-TERM"_s;
    QTest::newRow("Control-C") << u"-INT"_s;
    QTest::newRow("the terminal closes") << u"-HUP"_s;
}

void TrackerTest::everySignalSavesAndLeavesWell() {
    QFETCH(QString, signal);
    Program recorder;
    QCOMPARE(recorder.start(u"" USAGE_RECORDER ""_s), "ready");
    Program mail;
    show(mail, u"Mail"_s);
    seconds(1);
    QVERIFY(!QFile::exists(m_home->filePath(u"usage.json"_s)));
    QVERIFY(run(u"kill"_s, {signal, QString::number(recorder.processId())}));
    QVERIFY(recorder.waitForFinished(patience));
    QCOMPARE(recorder.exitStatus(), QProcess::NormalExit);
    QCOMPARE(recorder.exitCode(), 0);
    QCOMPARE(activations(u"Mail"_s), 1);
}

void TrackerTest::withoutADesktopItRunsAndLeavesWell() {
    qunsetenv("DISPLAY");
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    Program recorder;
    QCOMPARE(recorder.start(u"" USAGE_RECORDER ""_s), "ready");
    seconds(11);
    QCOMPARE(recorder.state(), QProcess::Running);
    recorder.stop();
    QCOMPARE(recorder.exitCode(), 0);
    QVERIFY(!QFile::exists(m_home->filePath(u"usage.json"_s)));
}

void TrackerTest::anIdleProcessWakesOncePerTick() {
    Program mail;
    show(mail, u"Mail"_s);
    Program recorder;
    QCOMPARE(recorder.start(u"" USAGE_RECORDER ""_s), "ready");
    seconds(60);
    const QByteArray awakenings = recorder.stop();
    // Six or seven ticks, the answers of the buses at the start, and the signal that ends it.
    QVERIFY2(awakenings.toInt() >= 5, awakenings.constData());
    QVERIFY2(awakenings.toInt() <= 7 + 4, awakenings.constData());
    QVERIFY(recorded(u"Mail"_s) > 45);
}

QTEST_GUILESS_MAIN(TrackerTest)
#include "TrackerTest.moc"
