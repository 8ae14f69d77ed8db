#include "Platform/MacOS/MacOSPreferences.h"

#include "MacOS/FakeCoreFoundation/FakeCoreFoundation.h"
#include "Platform/PreferencesContract.h"

using namespace Qt::StringLiterals;
using FakeCoreFoundation::computer;

class MacOSPreferencesTest : public PreferencesContract {
    Q_OBJECT

    static inline const QString dock = u"com.apple.dock"_s;

    class SystemDomain : public Domain {
    public:
        SystemDomain() { FakeCoreFoundation::reset(); }
        DockCore::Preferences& preferences() override { return m_preferences; }
        PropertyList::Dictionary stored() override { return computer().preferences.value(dock); }
        void store(const PropertyList::Dictionary& values) override { computer().preferences[dock] = values; }
        bool synchronizeRefused() override {
            computer().refusesToSave = true;
            const bool saved = m_preferences.synchronize();
            computer().refusesToSave = false;
            return saved;
        }

    private:
        Platform::MacOSPreferences m_preferences;
    };
    std::unique_ptr<Domain> makeDomain() override { return std::make_unique<SystemDomain>(); }

    /// A list in a list in a list: deeper than any property list may be.
    static PropertyList tooDeep() {
        PropertyList value = text("core");
        for (int level = 0; level < 600; ++level) {
            value = {PropertyList::Array{value}};
        }
        return value;
    }

private Q_SLOTS:
    void cleanup() { QCOMPARE(FakeCoreFoundation::liveObjects(), 0); }

    void aValueThatCannotBeWrittenIsARefusedSaveAndLeavesTheOldOne() {
        const auto domain = makeDomain();
        domain->store({{key("k"), text("stored")}});
        domain->preferences().setValue(key("k"), tooDeep());
        QVERIFY(!domain->preferences().synchronize());
        QVERIFY(domain->stored().value(key("k")) == text("stored"));
        QVERIFY(domain->preferences().copyValue(key("k")) == text("stored"));
    }

    void aRefusedValueIsReportedOnce() {
        const auto domain = makeDomain();
        domain->preferences().setValue(key("k"), tooDeep());
        QVERIFY(!domain->preferences().synchronize());
        // What is set for another key later is not to suffer for it.
        domain->preferences().setValue(key("other"), text("writable"));
        QVERIFY(domain->preferences().synchronize());
    }

    void anotherDomainIsLeftAlone() {
        const auto domain = makeDomain();
        Platform::MacOSPreferences own(u"org.kelvane.Kelvane"_s);
        own.setValue(key("SelfTest"), text("ours"));
        QVERIFY(own.synchronize());
        QVERIFY(computer().preferences.value(u"org.kelvane.Kelvane"_s).value(key("SelfTest")) == text("ours"));
        QVERIFY(domain->stored().isEmpty());
    }
};

QTEST_GUILESS_MAIN(MacOSPreferencesTest)
#include "MacOSPreferencesTest.moc"
