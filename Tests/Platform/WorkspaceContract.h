#pragma once

#include "Kelvane/Ports/Workspace.h"

#include <QSignalSpy>
#include <QTest>

/// What every adapter of the Workspace port keeps to. A test class derives from it and moves the desktop it stands for.
class WorkspaceContract : public QObject {
    Q_OBJECT

protected:
    using Application = Kelvane::RunningApplication;

    /// The workspace of the present test; made when it is first asked for.
    virtual Kelvane::Workspace& workspace() = 0;
    /// Brings an application like this to the front of the desktop; nothing leaves it without one.
    virtual void bringToFront(const std::optional<Application>& application) = 0;
    virtual void touchTheMouse() = 0;
    virtual void lockTheScreen() = 0;
    virtual void unlockTheScreen() = 0;
    virtual void endTheDesktop() = 0;

    static constexpr int patience = 20'000;
    static Application mail() {
        return {.isRegular = true, .bundleID = QStringLiteral("com.example.Mail"), .name = QStringLiteral("Mail")};
    }
    static Application notes() {
        return {.isRegular = true, .bundleID = QStringLiteral("com.example.Notes"), .name = QStringLiteral("Notes")};
    }

private Q_SLOTS:
    void anEmptyDesktopHasNothingInFront() { QCOMPARE(workspace().frontApplication(), std::optional<Application>()); }

    void whatIsInFrontIsTold() {
        workspace();
        bringToFront(mail());
        QTRY_COMPARE_WITH_TIMEOUT(workspace().frontApplication(), mail(), patience);
        bringToFront(notes());
        QTRY_COMPARE_WITH_TIMEOUT(workspace().frontApplication(), notes(), patience);
        bringToFront(std::nullopt);
        QTRY_COMPARE_WITH_TIMEOUT(workspace().frontApplication(), std::optional<Application>(), patience);
    }

    void aProgramOutsideAnyBundleHasNoIdentifier() {
        const Application adrift = {.isRegular = true, .bundleID = std::nullopt, .name = QStringLiteral("Adrift")};
        bringToFront(adrift);
        QTRY_COMPARE_WITH_TIMEOUT(workspace().frontApplication(), adrift, patience);
    }

    void aPanelIsNotRegular() {
        Application panel = mail();
        panel.isRegular = false;
        bringToFront(panel);
        QTRY_COMPARE_WITH_TIMEOUT(workspace().frontApplication(), panel, patience);
    }

    void everyComingToTheFrontIsAnnouncedOnce() {
        QList<Application> announced;
        connect(&workspace(), &Kelvane::Workspace::activated, this,
                [&announced](const Application& application) { announced.append(application); });
        bringToFront(mail());
        QTRY_COMPARE_WITH_TIMEOUT(announced.size(), 1, patience);
        bringToFront(mail());
        bringToFront(notes());
        QTRY_COMPARE_WITH_TIMEOUT(announced.size(), 2, patience);
        bringToFront(mail());
        QTRY_COMPARE_WITH_TIMEOUT(announced.size(), 3, patience);
        QCOMPARE(announced, QList<Application>({mail(), notes(), mail()}));
    }

    void lockingAndUnlockingAreAnnounced() {
        QSignalSpy paused(&workspace(), &Kelvane::Workspace::paused);
        QSignalSpy resumed(&workspace(), &Kelvane::Workspace::resumed);
        lockTheScreen();
        QTRY_COMPARE_WITH_TIMEOUT(paused.count(), 1, patience);
        QCOMPARE(resumed.count(), 0);
        unlockTheScreen();
        QTRY_COMPARE_WITH_TIMEOUT(resumed.count(), 1, patience);
        QCOMPARE(paused.count(), 1);
    }

    void inputIsNoticed() {
        touchTheMouse();
        const auto idle = workspace().sinceLastInput();
        QVERIFY(idle);
        QVERIFY(idle->count() >= 0);
        QVERIFY(idle->count() < 5);
    }

    void aDesktopThatHasGoneAnswersNothing() {
        bringToFront(mail());
        QTRY_VERIFY_WITH_TIMEOUT(workspace().frontApplication(), patience);
        endTheDesktop();
        QTRY_VERIFY_WITH_TIMEOUT(!workspace().frontApplication(), patience);
        QVERIFY(!workspace().sinceLastInput());
    }
};
