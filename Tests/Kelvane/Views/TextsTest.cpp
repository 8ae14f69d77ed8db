#include "WindowTest.h"

using namespace Kelvane;
using namespace Fakes;
using namespace Qt::StringLiterals;

/// The sentences that stand in the window whatever the data, to the letter.
class TextsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void paneSaysItsTexts_data() {
        QTest::addColumn<Pane>("pane");
        QTest::addColumn<QStringList>("texts");
        QTest::newRow("Dock") << Pane::dock
                              << QStringList{u"Your Dock"_s,
                                             u"Most-used apps move up front. Apps you've stopped using step aside."_s,
                                             u"Now"_s,
                                             u"Active profile"_s,
                                             u"Apply to Dock"_s,
                                             u"Automatic updates are paused because the Dock was changed outside "
                                             "Kelvane. Your change is safe until you resume."_s,
                                             u"Resume"_s};
        QTest::newRow("Usage") << Pane::usage << QStringList{u"Usage"_s, u"Last 7 days"_s, u"Last 30 days"_s};
        QTest::newRow("Profiles")
            << Pane::profiles
            << QStringList{
                   u"Profiles"_s,
                   u"Name"_s,
                   u"Icon"_s,
                   u"Always in the Dock"_s,
                   u"These come first, in this order, whatever your usage."_s,
                   u"None. The whole Dock is chosen by usage."_s,
                   u"Add Apps…"_s,
                   u"Fill the rest by usage"_s,
                   u"Busiest app first. 7 days follows this week's project; 30 days gives a steadier Dock."_s,
                   u"Most-used apps"_s,
                   u"Measured over"_s,
                   u"Never in the Dock"_s,
                   u"Keep these out of this profile even when you use them a lot, like chat apps in Personal."_s,
                   u"Preview"_s,
                   u"Delete Profile…"_s,
                   u"Make Active"_s,
                   u"Apply to Dock"_s};
        QTest::newRow("History") << Pane::history
                                 << QStringList{u"History"_s,
                                                u"Every change is saved first. Restore any earlier Dock."_s,
                                                u"Restore Previous Dock"_s,
                                                u"Original"_s,
                                                u"Same as now"_s,
                                                u"Restore"_s};
        QTest::newRow("Settings")
            << Pane::settings
            << QStringList{u"Settings"_s,
                           u"Reorganize automatically"_s,
                           u"Keeps the active profile in step with your usage. It waits until you stop typing or "
                           "clicking for a moment, so the Dock never shifts while you're reaching for it. If you "
                           "rearrange the Dock yourself, updates pause."_s,
                           u"Paused: the Dock was changed outside Kelvane."_s,
                           u"Resume"_s,
                           u"Open at login"_s,
                           u"Track app usage"_s,
                           u"Data"_s,
                           u"Stored in"_s,
                           u"Show in Finder"_s,
                           u"Usage history"_s,
                           u"Your usage stays on this Mac."_s,
                           u"Erase"_s,
                           u"Version"_s};
    }
    void paneSaysItsTexts() {
        QFETCH(Pane, pane);
        QFETCH(QStringList, texts);
        WindowWorld mac;
        DockCore::Profile profile = mac.model->activeProfile();
        profile.pinned.clear();
        profile.excluded.clear();
        mac.model->update(profile);
        QVERIFY(refreshAndWait(*mac.model));
        const QStringList before = mac.world.dock();
        mac.model->applyActive(AppModel::Notify::failuresOnly);
        QVERIFY(mac.waitForChange());
        // Put back by hand, it is the saved one again, and updates wait.
        mac.world.setDock(before);
        mac.open(pane);
        for (const QString& text : texts)
            QTRY_VERIFY2(mac.find(text) != nullptr, qPrintable(text));
    }

    void firstRunSaysItsTexts_data() {
        QTest::addColumn<int>("step");
        QTest::addColumn<QStringList>("texts");
        QTest::newRow("welcome") << 0
                                 << QStringList{u"A Dock that keeps up with you"_s,
                                                u"Kelvane reorganizes your Dock around the apps you actually use."_s,
                                                u"Promotes what you use"_s,
                                                u"Ranks apps by your last 7 or 30 days and moves them up front."_s,
                                                u"Profiles for every mode"_s,
                                                u"Work, Coding, Meeting and Personal. Switch from the menu bar."_s,
                                                u"One-click undo"_s,
                                                u"Every change is saved first. Restore any earlier Dock."_s,
                                                u"Private by design"_s,
                                                u"Your usage never leaves this Mac. No account, no cloud."_s,
                                                u"Continue"_s};
        QTest::newRow("choice") << 1
                                << QStringList{u"Where should we start?"_s,
                                               u"Pick a profile. You can edit every profile and switch any time from "
                                               "the menu bar."_s,
                                               u"Back"_s, u"Continue"_s};
        QTest::newRow("safety") << 2
                                << QStringList{u"Your Dock is safe"_s,
                                               u"We saved your current Dock as “Original”. Bring it back any time from "
                                               "the menu bar or History."_s,
                                               u"Reorganize automatically"_s,
                                               u"Open at login (recommended, so usage is counted)"_s,
                                               u"Not Now"_s,
                                               u"Apply to My Dock"_s};
    }
    void firstRunSaysItsTexts() {
        QFETCH(int, step);
        QFETCH(QStringList, texts);
        WindowWorld mac;
        mac.model->setOnboardingStep(step);
        mac.show();
        for (const QString& text : texts)
            QTRY_VERIFY2(mac.find(text) != nullptr, qPrintable(text));
    }

    void theToastShowsWhetherItIsAnError() {
        WindowWorld mac;
        mac.open(Pane::history);
        pinActive(*mac.model, {});
        mac.model->applyActive(AppModel::Notify::always);
        QVERIFY(mac.model->toast()->isError);
        QTRY_COMPARE(toastSymbol(*mac.quick()->contentItem()), u"exclamationmark.triangle.fill"_s);
        mac.model->eraseUsage();
        QTRY_COMPARE(toastSymbol(*mac.quick()->contentItem()), u"checkmark.circle.fill"_s);
    }

private:
    /// The symbol of the toast, or nothing when none is shown.
    static QString toastSymbol(const QQuickItem& item, bool inToast = false) {
        for (const QQuickItem* child : item.childItems()) {
            const QByteArrayView type(child->metaObject()->className());
            if (!child->isVisible())
                continue;
            if (inToast && child->inherits("Kelvane::SymbolItem"))
                return child->property("name").toString();
            if (const QString found = toastSymbol(*child, inToast || type.startsWith("Toast")); !found.isEmpty())
                return found;
        }
        return {};
    }
};

int main(int argc, char** argv) {
    return runWindowTest<TextsTest>(argc, argv);
}
#include "TextsTest.moc"
