#include "Support/FakeWorkspace.h"

#include "Platform/WorkspaceContract.h"

class FakeWorkspaceTest : public WorkspaceContract {
    Q_OBJECT

    Kelvane::Workspace& workspace() override { return *m_workspace; }
    void bringToFront(const std::optional<Application>& application) override {
        if (application)
            m_workspace->activate(*application);
        else
            m_workspace->front.reset();
    }
    void touchTheMouse() override { m_workspace->idle = std::chrono::seconds(0); }
    void lockTheScreen() override { m_workspace->pause(); }
    void unlockTheScreen() override { m_workspace->resume(); }
    void endTheDesktop() override { m_workspace->isGone = true; }

private Q_SLOTS:
    void init() { m_workspace = std::make_unique<Fakes::Workspace>(); }

    void screensThatAreFoundAsleepPauseBeforeTheAnswer() {
        QSignalSpy paused(m_workspace.get(), &Fakes::Workspace::paused);
        m_workspace->sleepsWhenAsked = true;
        QVERIFY(m_workspace->sinceLastInput());
        QCOMPARE(paused.count(), 1);
    }

private:
    std::unique_ptr<Fakes::Workspace> m_workspace;
};

QTEST_GUILESS_MAIN(FakeWorkspaceTest)
#include "FakeWorkspaceTest.moc"
