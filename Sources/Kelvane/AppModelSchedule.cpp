// Automatic updates: when the Dock is brought in line by itself, and when that waits for the user.

#include "Kelvane/AppModel.h"

#include "DockCore/DockStore.h"
#include "DockCore/Ports/Clock.h"
#include "DockCore/Services.h"
#include "Kelvane/Ports/Workspace.h"
#include "Kelvane/UsageTracker.h"

using namespace DockCore;
using namespace std::chrono_literals;

namespace Kelvane {

namespace {
constexpr auto checkInterval = 120s;
constexpr std::chrono::duration<double> idleThreshold = 20s;
} // namespace

void AppModel::startSchedule() {
    m_autoTimer.setTimerType(Qt::CoarseTimer);
    m_autoTimer.setInterval(checkInterval);
    connect(&m_autoTimer, &QTimer::timeout, this, &AppModel::autoCheck);
    m_autoTimer.start();
}

void AppModel::recordApplied(const QStringList& signature) {
    Clock& clock = Services::current().clock;
    m_store.settings.lastAppliedSignature = signature;
    m_store.settings.lastApplied = clock.now();
    m_store.settings.autoPaused = false;
    m_appliedElapsed = clock.elapsed();
    saveSettings();
}

bool AppModel::isDue() const {
    if (!settings().lastApplied)
        return true;
    Clock& clock = Services::current().clock;
    // Within one run the time that really passed counts, so that a clock set forward makes nothing due early.
    const std::chrono::duration<double> passed =
        m_appliedElapsed ? std::chrono::duration<double>(clock.elapsed() - *m_appliedElapsed)
                         : std::chrono::milliseconds(settings().lastApplied->msecsTo(clock.now()));
    return passed >= std::chrono::seconds(static_cast<int>(settings().autoUpdate));
}

void AppModel::autoCheck() {
    if (!settings().onboarded || settings().autoUpdate == AutoUpdate::off || settings().autoPaused ||
        !settings().lastAppliedSignature || !isDue())
        return;
    if (m_workspace != nullptr) {
        const auto idle = m_workspace->sinceLastInput();
        if (!idle || *idle <= idleThreshold)
            return;
    }
    tracker().flush();
    refresh([this] {
        if (!settings().autoPaused)
            applyActive(Notify::failuresOnly);
    });
}

void AppModel::detectManualChange() {
    // While a change of our own runs, the Dock may hold either list.
    if (m_isWorking || settings().autoUpdate == AutoUpdate::off || settings().autoPaused ||
        !settings().lastAppliedSignature || *settings().lastAppliedSignature == layoutSignature(m_current))
        return;
    m_store.settings.autoPaused = true;
    saveSettings();
}

void AppModel::resumeAuto(Reply reply) {
    m_store.settings.autoPaused = false;
    saveSettings();
    applyActive(Notify::always, std::move(reply));
}

void AppModel::setAutoUpdate(AutoUpdate interval) {
    m_store.settings.autoUpdate = interval;
    if (interval == AutoUpdate::off)
        m_store.settings.autoPaused = false;
    saveSettings();
}

} // namespace Kelvane
