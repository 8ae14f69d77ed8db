#include "Platform/Linux/X11Workspace.h"

#include "DockCore/Services.h"
#include "Platform/Linux/LinuxServices.h"
#include "Platform/WorkspaceContract.h"
#include "StandInWindows.h"
#include "Support/PrivateDesktop.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Kelvane::RunningApplication;
using Platform::X11Workspace;

/// The adapter alone before a private X server. What it does when bus or server are missing is told by its answers.
class X11WorkspaceTest : public WorkspaceContract {
    Q_OBJECT

    Kelvane::Workspace& workspace() override;
    void bringToFront(const std::optional<Application>& application) override;
    void touchTheMouse() override;
    void lockTheScreen() override { announceLock(true); }
    void unlockTheScreen() override { announceLock(false); }
    void endTheDesktop() override;

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void theFrontApplicationIsTheBundleAroundItsProcess();
    void aProgramReplacedWhileItRunsKeepsItsBundle();
    void theInnermostBundleCounts();
    void whatIsNoBundleIsNone_data();
    void whatIsNoBundleIsNone();
    void aWindowWithoutAProcessHasNoBundle();
    void aProcessThatIsGoneHasNoBundle();
    void aProcessOfSomebodyElseHasNoBundle();
    void onlyOrdinaryWindowsAreRegular_data();
    void onlyOrdinaryWindowsAreRegular();
    void namesOfWindowsAreReadLeniently_data();
    void namesOfWindowsAreReadLeniently();
    void aWindowThatEndedIsNoFrontApplication();
    void withoutAWindowManagerNothingIsInFront();
    void anActivationIsAnnouncedOnce();
    void anotherWindowOfTheSameProcessIsNoActivation();
    void aMomentWithoutAnActiveWindowIsNoActivation();
    void whoWasInFrontBeforeIsNotAnnounced();
    void tenThousandFocusChangesAreSurvived();
    void inputResetsTheIdleTime();
    void withoutADisplayNobodyIsThere();
    void aDisplayThatAppearsLaterIsFound();
    void aServerThatGoesIsFoundAgain();
    void aServerThatGoesBetweenTwoQuestionsIsNoticed();
    void withoutASessionBusNobodyIsInFront();
    void aSessionBusThatGoesIsFoundAgain();

private:
    void announceLock(bool active);
    QString bundle(const QString& name, const QByteArray& identifier);
    quint32 processOf(const QString& program);
    quint32 bundledWindow(const QString& name, const QByteArray& identifier);

    Platform::LinuxServices m_system;
    std::unique_ptr<PrivateDesktop> m_desktop;
    std::unique_ptr<QTemporaryDir> m_applications;
    std::unique_ptr<StandInWindows> m_windows;
    std::vector<std::unique_ptr<QProcess>> m_processes;
    std::unique_ptr<X11Workspace> m_workspace;
    QMap<QString, quint32> m_windowByName;
};

Kelvane::Workspace& X11WorkspaceTest::workspace() {
    if (!m_workspace)
        m_workspace = std::make_unique<X11Workspace>(m_system.services().bundles);
    return *m_workspace;
}

void X11WorkspaceTest::bringToFront(const std::optional<Application>& application) {
    if (!application) {
        m_windows->activate(0);
        return;
    }
    const QString name = application->name.value_or(QString());
    if (!m_windowByName.contains(name)) {
        StandInWindows::Properties properties = {.type = application->isRegular ? "" : "_NET_WM_WINDOW_TYPE_DOCK",
                                                 .title = name.toUtf8()};
        if (application->bundleID)
            properties.process = processOf(bundle(name, application->bundleID->toUtf8()));
        m_windowByName.insert(name, m_windows->make(properties));
    }
    m_windows->activate(m_windowByName.value(name));
}

void X11WorkspaceTest::touchTheMouse() {
    static int place = 10;
    ++place;
    QCOMPARE(QProcess::execute(u"xdotool"_s, {u"mousemove"_s, QString::number(place), u"12"_s}), 0);
}

void X11WorkspaceTest::announceLock(bool active) {
    QCOMPARE(QProcess::execute(u"dbus-send"_s, {u"--session"_s, u"--type=signal"_s, u"/org/freedesktop/ScreenSaver"_s,
                                                u"org.freedesktop.ScreenSaver.ActiveChanged"_s,
                                                active ? u"boolean:true"_s : u"boolean:false"_s}),
             0);
}

void X11WorkspaceTest::endTheDesktop() {
    m_windows.reset();
    m_desktop->stopDisplay();
}

void X11WorkspaceTest::initTestCase() {
    for (const QString& program : {u"Xvfb"_s, u"dbus-daemon"_s, u"dbus-send"_s, u"xdotool"_s})
        if (QStandardPaths::findExecutable(program).isEmpty())
            QSKIP("Xvfb, the D-Bus programs and xdotool are needed to make a desktop");
}

void X11WorkspaceTest::init() {
    m_desktop = std::make_unique<PrivateDesktop>();
    m_applications = std::make_unique<QTemporaryDir>();
    QVERIFY(m_desktop->startDisplay());
    QVERIFY(m_desktop->startSessionBus());
    m_windows = std::make_unique<StandInWindows>();
}

void X11WorkspaceTest::cleanup() {
    m_workspace.reset();
    m_windowByName.clear();
    for (const auto& process : m_processes) {
        process->kill();
        process->waitForFinished(patience);
    }
    m_processes.clear();
    m_windows.reset();
    m_desktop.reset();
}

QString X11WorkspaceTest::bundle(const QString& name, const QByteArray& identifier) {
    return PrivateDesktop::makeBundle(m_applications->path(), name, identifier);
}

quint32 X11WorkspaceTest::processOf(const QString& program) {
    auto& process = m_processes.emplace_back(std::make_unique<QProcess>());
    process->start(program, {u"1000"_s});
    return process->waitForStarted(patience) ? static_cast<quint32>(process->processId()) : 0;
}

quint32 X11WorkspaceTest::bundledWindow(const QString& name, const QByteArray& identifier) {
    return m_windows->make({.process = processOf(bundle(name, identifier))});
}

void X11WorkspaceTest::theFrontApplicationIsTheBundleAroundItsProcess() {
    X11Workspace adapter(m_system.services().bundles);
    QCOMPARE(adapter.frontApplication(), std::optional<RunningApplication>());
    m_windows->activate(bundledWindow(u"Mail"_s, "com.example.Mail"));
    const RunningApplication mail = {.isRegular = true, .bundleID = u"com.example.Mail"_s, .name = u"Mail"_s};
    QCOMPARE(adapter.frontApplication(), mail);
    m_windows->activate(0);
    QCOMPARE(adapter.frontApplication(), std::optional<RunningApplication>());
}

void X11WorkspaceTest::aProgramReplacedWhileItRunsKeepsItsBundle() {
    const QString program = bundle(u"Mail"_s, "com.example.Mail");
    m_windows->activate(m_windows->make({.process = processOf(program)}));
    QVERIFY(QFile::remove(program));
    X11Workspace adapter(m_system.services().bundles);
    const auto front = adapter.frontApplication();
    QVERIFY(front);
    QCOMPARE(front->bundleID, u"com.example.Mail"_s);
}

void X11WorkspaceTest::theInnermostBundleCounts() {
    bundle(u"Suite"_s, "com.example.Suite");
    const QString inner = PrivateDesktop::makeBundle(m_applications->filePath(u"Suite.app/Contents/Frameworks"_s),
                                                     u"Helper"_s, "com.example.Suite.Helper");
    m_windows->activate(m_windows->make({.process = processOf(inner)}));
    X11Workspace adapter(m_system.services().bundles);
    const auto front = adapter.frontApplication();
    QVERIFY(front);
    QCOMPARE(front->bundleID, u"com.example.Suite.Helper"_s);
}

void X11WorkspaceTest::whatIsNoBundleIsNone_data() {
    QTest::addColumn<QString>("folder");
    QTest::addColumn<std::optional<QString>>("bundleID");
    QTest::newRow("a program in an ordinary folder") << u"bin"_s << std::optional<QString>();
    QTest::newRow("a folder that is only called a bundle") << u"Empty.app/Contents/MacOS"_s << std::optional<QString>();
    QTest::newRow("a suffix in other letters") << u"Mail.APP/Contents/MacOS"_s << std::optional<QString>();
    QTest::newRow("a folder called a bundle inside a bundle")
        << u"Real.app/Contents/Empty.app/MacOS"_s << std::optional(u"com.example.Real"_s);
}

void X11WorkspaceTest::whatIsNoBundleIsNone() {
    QFETCH(QString, folder);
    QFETCH(std::optional<QString>, bundleID);
    bundle(u"Real"_s, "com.example.Real");
    QVERIFY(QDir(m_applications->path()).mkpath(folder));
    const QString program = m_applications->filePath(folder + "/it"_L1);
    QVERIFY(QFile::copy(QStandardPaths::findExecutable(u"sleep"_s), program));
    m_windows->activate(m_windows->make({.process = processOf(program)}));
    X11Workspace adapter(m_system.services().bundles);
    const auto front = adapter.frontApplication();
    QVERIFY(front);
    QVERIFY(front->isRegular);
    QCOMPARE(front->bundleID, bundleID);
}

void X11WorkspaceTest::aWindowWithoutAProcessHasNoBundle() {
    m_windows->activate(m_windows->make({.title = "Adrift"}));
    X11Workspace adapter(m_system.services().bundles);
    const RunningApplication adrift = {.isRegular = true, .bundleID = std::nullopt, .name = u"Adrift"_s};
    QCOMPARE(adapter.frontApplication(), adrift);
}

void X11WorkspaceTest::aProcessThatIsGoneHasNoBundle() {
    const quint32 window = bundledWindow(u"Mail"_s, "com.example.Mail");
    m_windows->activate(window);
    X11Workspace adapter(m_system.services().bundles);
    QVERIFY(adapter.frontApplication()->bundleID);
    m_processes.front()->kill();
    QVERIFY(m_processes.front()->waitForFinished(patience));
    const auto front = adapter.frontApplication();
    QVERIFY(front);
    QCOMPARE(front->bundleID, std::optional<QString>());
}

void X11WorkspaceTest::aProcessOfSomebodyElseHasNoBundle() {
    for (const quint32 process : {1U, 0U, 0x7fffffffU, 0xffffffffU}) {
        m_windows->activate(m_windows->make({.process = process}));
        X11Workspace adapter(m_system.services().bundles);
        const auto front = adapter.frontApplication();
        QVERIFY(front);
        QCOMPARE(front->bundleID, std::optional<QString>());
    }
}

void X11WorkspaceTest::onlyOrdinaryWindowsAreRegular_data() {
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<bool>("isRegular");
    const auto row = [](const char* name, const char* type, bool isRegular) {
        QTest::newRow(name) << (*type == 0 ? QByteArray() : QByteArray("_NET_WM_WINDOW_TYPE_") + type) << isRegular;
    };
    row("a window without a type", "", true);
    row("a normal window", "NORMAL", true);
    row("a dialogue", "DIALOG", true);
    row("a utility window", "UTILITY", true);
    row("a type that nobody knows", "SPACESHIP", true);
    row("a dock", "DOCK", false);
    row("a desktop", "DESKTOP", false);
    row("a notification", "NOTIFICATION", false);
    row("a splash screen", "SPLASH", false);
    row("a menu", "POPUP_MENU", false);
}

void X11WorkspaceTest::onlyOrdinaryWindowsAreRegular() {
    QFETCH(QByteArray, type);
    QFETCH(bool, isRegular);
    m_windows->activate(m_windows->make({.type = type}));
    X11Workspace adapter(m_system.services().bundles);
    const auto front = adapter.frontApplication();
    QVERIFY(front);
    QCOMPARE(front->isRegular, isRegular);
}

void X11WorkspaceTest::namesOfWindowsAreReadLeniently_data() {
    QTest::addColumn<QByteArray>("className");
    QTest::addColumn<QByteArray>("title");
    QTest::addColumn<QString>("name");
    const QByteArray none;
    QTest::newRow("the class goes before the title")
        << QByteArray("xterm\0XTerm\0", 12) << QByteArray("~") << u"XTerm"_s;
    QTest::newRow("the title where there is no class") << none << QByteArray("Caf\xc3\xa9") << u"Café"_s;
    QTest::newRow("a class in broken UTF-8") << QByteArray("a\0X\xff\xc3(\0", 7) << none << u"X\uFFFD\uFFFD("_s;
    QTest::newRow("a title in broken UTF-8") << none << QByteArray("\xed\xa0\x80!") << u"\uFFFD\uFFFD\uFFFD!"_s;
    QTest::newRow("a class without its zeros") << QByteArray("xterm") << QByteArray("Title") << u"Title"_s;
    QTest::newRow("a title that is cut in the middle of a character")
        << none << QByteArray(1023, 'a') + "\xc3\xa9" << QString(1023, u'a') + u'\uFFFD';
}

void X11WorkspaceTest::namesOfWindowsAreReadLeniently() {
    QFETCH(QByteArray, className);
    QFETCH(QByteArray, title);
    QFETCH(QString, name);
    m_windows->activate(m_windows->make({.className = className, .title = title}));
    X11Workspace adapter(m_system.services().bundles);
    const auto front = adapter.frontApplication();
    QVERIFY(front);
    QCOMPARE(front->name, name);
}

void X11WorkspaceTest::aWindowThatEndedIsNoFrontApplication() {
    X11Workspace adapter(m_system.services().bundles);
    const quint32 window = m_windows->make({});
    m_windows->activate(window);
    QVERIFY(adapter.frontApplication());
    // The window manager still names it.
    m_windows->destroy(window);
    QCOMPARE(adapter.frontApplication(), std::optional<RunningApplication>());
}

void X11WorkspaceTest::withoutAWindowManagerNothingIsInFront() {
    X11Workspace adapter(m_system.services().bundles);
    QCOMPARE(adapter.frontApplication(), std::optional<RunningApplication>());
    QVERIFY(adapter.sinceLastInput());
}

void X11WorkspaceTest::anActivationIsAnnouncedOnce() {
    const quint32 mail = bundledWindow(u"Mail"_s, "com.example.Mail");
    const quint32 notes = bundledWindow(u"Notes"_s, "com.example.Notes");
    X11Workspace adapter(m_system.services().bundles);
    QStringList announced;
    connect(&adapter, &X11Workspace::activated, this, [&announced](const RunningApplication& application) {
        announced.append(application.bundleID.value_or(u"none"_s));
    });
    const QStringList expected = {u"com.example.Mail"_s, u"com.example.Notes"_s, u"com.example.Mail"_s};
    for (qsizetype i = 0; i < expected.size(); ++i) {
        // Window managers like to say things twice.
        m_windows->activate(i % 2 == 0 ? mail : notes);
        m_windows->activate(i % 2 == 0 ? mail : notes);
        QTRY_COMPARE_WITH_TIMEOUT(announced, expected.first(i + 1), patience);
        m_windows->activate(i % 2 == 0 ? mail : notes);
    }
    // What is asked meanwhile must not swallow what is announced.
    m_windows->activate(notes);
    QVERIFY(adapter.frontApplication());
    QTRY_COMPARE_WITH_TIMEOUT(announced, expected + QStringList{u"com.example.Notes"_s}, patience);
}

void X11WorkspaceTest::anotherWindowOfTheSameProcessIsNoActivation() {
    const quint32 process = processOf(bundle(u"Mail"_s, "com.example.Mail"));
    const quint32 inbox = m_windows->make({.process = process});
    const quint32 letter = m_windows->make({.process = process, .type = "_NET_WM_WINDOW_TYPE_DIALOG"});
    const quint32 notes = bundledWindow(u"Notes"_s, "com.example.Notes");
    X11Workspace adapter(m_system.services().bundles);
    QSignalSpy spy(&adapter, &X11Workspace::activated);
    m_windows->activate(inbox);
    QVERIFY(spy.wait(patience));
    m_windows->activate(letter);
    QVERIFY(adapter.frontApplication());
    m_windows->activate(inbox);
    QVERIFY(adapter.frontApplication());
    QCoreApplication::processEvents();
    m_windows->activate(notes);
    QTRY_COMPARE_WITH_TIMEOUT(spy.count(), 2, patience);
}

void X11WorkspaceTest::aMomentWithoutAnActiveWindowIsNoActivation() {
    const quint32 mail = bundledWindow(u"Mail"_s, "com.example.Mail");
    const quint32 notes = bundledWindow(u"Notes"_s, "com.example.Notes");
    X11Workspace adapter(m_system.services().bundles);
    QSignalSpy spy(&adapter, &X11Workspace::activated);
    m_windows->activate(mail);
    QVERIFY(spy.wait(patience));
    m_windows->activate(0);
    adapter.frontApplication();
    QCoreApplication::processEvents();
    m_windows->activate(mail);
    adapter.frontApplication();
    QCoreApplication::processEvents();
    m_windows->activate(notes);
    QTRY_COMPARE_WITH_TIMEOUT(spy.count(), 2, patience);
}

void X11WorkspaceTest::whoWasInFrontBeforeIsNotAnnounced() {
    const quint32 mail = bundledWindow(u"Mail"_s, "com.example.Mail");
    const quint32 notes = bundledWindow(u"Notes"_s, "com.example.Notes");
    m_windows->activate(mail);
    X11Workspace adapter(m_system.services().bundles);
    QSignalSpy spy(&adapter, &X11Workspace::activated);
    m_windows->activate(mail);
    adapter.frontApplication();
    QCoreApplication::processEvents();
    QCOMPARE(spy.count(), 0);
    m_windows->activate(notes);
    QTRY_COMPARE_WITH_TIMEOUT(spy.count(), 1, patience);
}

void X11WorkspaceTest::tenThousandFocusChangesAreSurvived() {
    const quint32 mail = bundledWindow(u"Mail"_s, "com.example.Mail");
    const quint32 notes = bundledWindow(u"Notes"_s, "com.example.Notes");
    const quint32 last = bundledWindow(u"Last"_s, "com.example.Last");
    X11Workspace adapter(m_system.services().bundles);
    QStringList announced;
    connect(&adapter, &X11Workspace::activated, this, [&announced](const RunningApplication& application) {
        announced.append(application.bundleID.value_or(u"none"_s));
    });
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 10'000; ++i) {
        m_windows->activateSoon(i % 2 == 0 ? mail : notes);
        if (i % 100 == 0) {
            m_windows->finish();
            QCoreApplication::processEvents();
        }
    }
    m_windows->activate(last);
    QTRY_VERIFY_WITH_TIMEOUT(!announced.isEmpty() && announced.constLast() == u"com.example.Last"_s, patience);
    QVERIFY2(timer.elapsed() < 5'000, "the flood stalled the process");
    // Never the same one twice in a row, however they were bundled.
    for (qsizetype i = 1; i < announced.size(); ++i)
        QVERIFY(announced.at(i) != announced.at(i - 1));
    QCOMPARE(adapter.frontApplication()->bundleID, u"com.example.Last"_s);
}

void X11WorkspaceTest::inputResetsTheIdleTime() {
    X11Workspace adapter(m_system.services().bundles);
    QTRY_VERIFY_WITH_TIMEOUT(adapter.sinceLastInput() >= 300ms, patience);
    touchTheMouse();
    const auto idle = adapter.sinceLastInput();
    QVERIFY(idle);
    QVERIFY(*idle < 300ms);
}

void X11WorkspaceTest::withoutADisplayNobodyIsThere() {
    qunsetenv("DISPLAY");
    X11Workspace adapter(m_system.services().bundles);
    QCOMPARE(adapter.frontApplication(), std::optional<RunningApplication>());
    QCOMPARE(adapter.sinceLastInput(), std::optional(std::chrono::duration<double>::max()));
    // Somebody may well be there, where we cannot see them.
    qputenv("WAYLAND_DISPLAY", "wayland-0");
    QVERIFY(!adapter.sinceLastInput());
    qunsetenv("WAYLAND_DISPLAY");
}

void X11WorkspaceTest::aDisplayThatAppearsLaterIsFound() {
    m_windows.reset();
    m_desktop->stopDisplay();
    X11Workspace adapter(m_system.services().bundles);
    QVERIFY(!adapter.sinceLastInput());
    QVERIFY(m_desktop->startDisplay());
    QTRY_VERIFY_WITH_TIMEOUT(adapter.sinceLastInput(), patience);
}

void X11WorkspaceTest::aServerThatGoesIsFoundAgain() {
    X11Workspace adapter(m_system.services().bundles);
    m_windows->activate(m_windows->make({.title = "before"}));
    QVERIFY(adapter.frontApplication());
    m_windows.reset();
    m_desktop->stopDisplay();
    QCoreApplication::processEvents();
    QVERIFY(!adapter.frontApplication());
    QVERIFY(!adapter.sinceLastInput());

    QVERIFY(m_desktop->startDisplay());
    QTRY_VERIFY_WITH_TIMEOUT(adapter.sinceLastInput(), patience);
    m_windows = std::make_unique<StandInWindows>();
    QSignalSpy spy(&adapter, &X11Workspace::activated);
    m_windows->activate(bundledWindow(u"Mail"_s, "com.example.Mail"));
    QVERIFY(spy.wait(patience));
    QCOMPARE(adapter.frontApplication()->bundleID, u"com.example.Mail"_s);
}

void X11WorkspaceTest::aServerThatGoesBetweenTwoQuestionsIsNoticed() {
    X11Workspace adapter(m_system.services().bundles);
    QVERIFY(adapter.sinceLastInput());
    m_windows.reset();
    m_desktop->stopDisplay();
    // No event was handled in between.
    QVERIFY(!adapter.frontApplication());
    QVERIFY(!adapter.sinceLastInput());
    QVERIFY(!adapter.sinceLastInput());
    QCoreApplication::processEvents();
    QVERIFY(!adapter.frontApplication());
}

void X11WorkspaceTest::withoutASessionBusNobodyIsInFront() {
    m_desktop->stopSessionBus();
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    const quint32 mail = bundledWindow(u"Mail"_s, "com.example.Mail");
    X11Workspace adapter(m_system.services().bundles);
    QSignalSpy spy(&adapter, &X11Workspace::activated);
    m_windows->activate(mail);
    QCOMPARE(adapter.frontApplication(), std::optional<RunningApplication>());
    QCoreApplication::processEvents();
    QCOMPARE(spy.count(), 0);
    // The schedule can still tell whether the user has paused.
    QVERIFY(adapter.sinceLastInput());
}

void X11WorkspaceTest::aSessionBusThatGoesIsFoundAgain() {
    m_windows->activate(bundledWindow(u"Mail"_s, "com.example.Mail"));
    X11Workspace adapter(m_system.services().bundles);
    QVERIFY(adapter.frontApplication());
    QSignalSpy spy(&adapter, &X11Workspace::resumed);
    m_desktop->stopSessionBus();
    QTRY_VERIFY_WITH_TIMEOUT(!adapter.frontApplication(), patience);
    QVERIFY(m_desktop->startSessionBus());
    QTRY_VERIFY_WITH_TIMEOUT(adapter.sinceLastInput() && adapter.frontApplication(), patience);
    // An unlocking may have been missed.
    QCOMPARE(spy.count(), 1);
}

QTEST_GUILESS_MAIN(X11WorkspaceTest)
#include "X11WorkspaceTest.moc"
