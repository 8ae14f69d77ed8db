#include "Kelvane/AppModel.h"
#include "Kelvane/Shell/AppDelegate.h"
#include "Kelvane/Shell/WindowModule.h"
#include "Platform/Linux/LinuxServices.h"
#include "Platform/Linux/LinuxSession.h"
#include "Window/ListScroll.h"
#include "Window/Subject.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QQuickWindow>

using namespace DockCore;
using namespace Kelvane;
using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 3;
constexpr int savedDocks = 12;
constexpr int pinned = 20;
constexpr int usageSlots = 40;

class KelvaneSubject : public Subject {
public:
    KelvaneSubject() {
        QEventLoop loop;
        QObject::connect(&m_model, &AppModel::refreshed, &loop, &QEventLoop::quit);
        m_delegate.finishLaunching(AppDelegate::Window::onFirstRun);
        loop.exec();
    }

    void open() override { m_delegate.showWindow(); }

    QQuickWindow& window() override {
        for (QWindow* candidate : QGuiApplication::topLevelWindows()) {
            if (auto* window = qobject_cast<QQuickWindow*>(candidate)) {
                return *window;
            }
        }
        qFatal("the application has no window");
    }

    bool isFilled() override {
        const auto* content = window().findChild<QObject*>(u"content"_s);
        return content != nullptr && !content->property("item").isNull();
    }

    QList<Step> steps() override {
        fill();
        QList<Step> steps;
        for (int round = 0; round < rounds; ++round) {
            // From the second pane round to the first, which is the one that shows.
            for (qsizetype step = 1; step <= allPanes().size(); ++step) {
                const qsizetype pane = step % allPanes().size();
                steps.append({allPanes()[pane].name, [this, pane] { m_model.setPane(static_cast<Pane>(pane)); }});
            }
        }
        for (int round = 0; round < rounds; ++round) {
            for (const Profile& profile : m_model.profiles()) {
                steps.append({u"profile"_s, [this, id = profile.id] { m_model.activate(id, AppModel::Apply::no); }});
            }
        }
        steps.append({u"usage"_s, [this] { m_model.setPane(Pane::usage); }});
        steps.append(ListScroll::step(window(), u"ranking"_s));
        return steps;
    }

private:
    /// Makes the profiles as large as the Dock.
    void fill() {
        QStringList identifiers;
        for (const DockTile& tile : m_model.current()) {
            identifiers.append(tile.bundleID.value_or(QString()));
        }
        const QList<Profile> profiles = m_model.profiles();
        for (qsizetype number = 0; number < profiles.size(); ++number) {
            Profile profile = profiles[number];
            profile.pinned = identifiers.mid(number * 10, pinned);
            profile.adaptiveSlots = usageSlots;
            m_model.update(profile);
        }
    }

    /// Saves a dozen Docks before the model reads the list.
    static Platform::LinuxServices& filled(Platform::LinuxServices& system) {
        const Services services = system.services();
        DockStore dock(services.preferences, services.processes, services.clock);
        SnapshotStore snapshots(Paths(services.folders).snapshots(), dock, services.clock);
        for (int number = 0; number < savedDocks; ++number) {
            snapshots.capture(u"Before number %1"_s.arg(number), SnapshotStore::Mark::ordinary);
        }
        return system;
    }

    Platform::LinuxServices m_system;
    Platform::LinuxSession m_desktop = Platform::LinuxSession(filled(m_system).services());
    AppModel m_model = AppModel(m_system.services(), Paths(m_system.services().folders), &m_desktop.workspace(),
                                &m_desktop.loginItem());
    AppDelegate m_delegate = AppDelegate(m_model, m_desktop.desktop(), m_desktop.images(), WindowModule::makeWindow);
};

} // namespace

std::unique_ptr<Subject> Subject::kelvane() {
    return std::make_unique<KelvaneSubject>();
}
