#include "Support/FakeServices.h"

#include "Platform/BundlesContract.h"
#include "Platform/ClockContract.h"
#include "Platform/FoldersContract.h"
#include "Platform/MetadataContract.h"
#include "Platform/PreferencesContract.h"
#include "Platform/ProcessesContract.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

/// The fakes keep the contracts of their ports, so that a test that passes with them says something about the real
/// ones.
namespace {

class FakePreferencesTest : public PreferencesContract {
    Q_OBJECT

    class FakeDomain : public Domain {
    public:
        DockCore::Preferences& preferences() override { return m_preferences; }
        PropertyList::Dictionary stored() override { return m_preferences.stored; }
        void store(const PropertyList::Dictionary& values) override { m_preferences.stored = values; }
        bool synchronizeRefused() override {
            m_preferences.refusesToSave = true;
            const bool isSaved = m_preferences.synchronize();
            m_preferences.refusesToSave = false;
            return isSaved;
        }

    private:
        Fakes::Preferences m_preferences;
    };
    std::unique_ptr<Domain> makeDomain() override { return std::make_unique<FakeDomain>(); }
};

class FakeProcessesTest : public ProcessesContract {
    Q_OBJECT

    class FakeComputer : public Computer {
    public:
        FakeComputer() {
            m_processes.answer = [this](const Fakes::Processes::Run& run) -> std::optional<int> {
                return run.executable == exitingProgram() ? std::optional(run.arguments.value(0).toInt())
                                                          : std::nullopt;
            };
        }
        DockCore::Processes& processes() override { return m_processes; }
        QString exitingProgram() override { return u"/bin/exiting"_s; }
        QString killedProgram() override { return u"/bin/killed"_s; }
        QString missingProgram() override { return u"/bin/missing"_s; }

    private:
        Fakes::Processes m_processes;
    };
    std::unique_ptr<Computer> makeComputer() override { return std::make_unique<FakeComputer>(); }

private Q_SLOTS:
    void everyRunIsRecorded() {
        Fakes::Processes processes;
        QCOMPARE(processes.run(u"/usr/bin/killall"_s, {u"Dock"_s}), std::optional(0));
        QVERIFY(processes.runs == (QList<Fakes::Processes::Run>{{u"/usr/bin/killall"_s, {u"Dock"_s}}}));
    }
};

class FakeBundlesTest : public BundlesContract {
    Q_OBJECT

    class FakeComputer : public Computer {
    public:
        DockCore::Bundles& bundles() override { return m_bundles; }
        QString install(const QString& name, const std::optional<QString>& identifier) override {
            const QString path = u"/Applications/"_s + name + u".app"_s;
            m_bundles.add(path, identifier, name);
            return path;
        }
        void remove(const QString& path) override { m_bundles.remove(path); }

    private:
        Fakes::Bundles m_bundles;
    };
    std::unique_ptr<Computer> makeComputer() override { return std::make_unique<FakeComputer>(); }
};

class FakeFoldersTest : public FoldersContract {
    Q_OBJECT

    class FakeComputer : public Computer {
    public:
        FakeComputer() { m_folders.supportPath = u"/Users/x/Library/Application Support"_s; }
        DockCore::Folders& folders() override { return m_folders; }
        QString fill(const QStringList& names) override {
            const QString folder = u"/Applications"_s;
            QStringList& entries = m_folders.listing[folder];
            for (const QString& name : names) {
                entries.append(folder + u'/' + name);
            }
            return folder;
        }
        QString missingFolder() override { return u"/nowhere"_s; }

    private:
        Fakes::Folders m_folders;
    };
    std::unique_ptr<Computer> makeComputer() override { return std::make_unique<FakeComputer>(); }
};

class FakeMetadataTest : public MetadataContract {
    Q_OBJECT

    class FakeComputer : public Computer {
    public:
        DockCore::Metadata& metadata() override { return m_metadata; }
        QString makeFile(const Item& item) override {
            const QString path = u"/Applications/Safari.app"_s;
            m_metadata.items.insert(path, item);
            return path;
        }
        QString missingFile() override { return u"/nowhere"_s; }

    private:
        Fakes::Metadata m_metadata;
    };
    std::unique_ptr<Computer> makeComputer() override { return std::make_unique<FakeComputer>(); }
};

class FakeClockTest : public ClockContract {
    Q_OBJECT

    std::unique_ptr<DockCore::Clock> makeClock() override { return std::make_unique<Fakes::Clock>(); }

private Q_SLOTS:
    void aSleepMovesTheClockByItsLengthAndIsRecorded() {
        Fakes::Clock clock;
        const QDateTime before = clock.now();
        clock.sleep(std::chrono::milliseconds(600));
        QCOMPARE(before.msecsTo(clock.now()), 600);
        QVERIFY(clock.sleeps == QList{std::chrono::milliseconds(600)});
    }

    void settingTheWallClockPassesNoTime() {
        Fakes::Clock clock;
        const auto before = clock.elapsed();
        clock.set(clock.now().addDays(-3));
        QVERIFY(clock.elapsed() == before);
    }
};

template <typename... Tests>
int runAll(int argc, char** argv) {
    const auto run = [&](QObject&& test) { return QTest::qExec(&test, argc, argv); };
    return (0 + ... + run(Tests()));
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    return runAll<FakePreferencesTest, FakeProcessesTest, FakeBundlesTest, FakeFoldersTest, FakeMetadataTest,
                  FakeClockTest>(argc, argv);
}

#include "FakeServicesTest.moc"
