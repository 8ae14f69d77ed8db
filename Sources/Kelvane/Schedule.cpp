#include "Kelvane/Schedule.h"

using namespace DockCore;
using namespace std::chrono_literals;

namespace Kelvane {

namespace {
constexpr Schedule::Seconds idleThreshold = 20s;
} // namespace

bool Schedule::isDue(const AppSettings& settings, std::optional<Seconds> sinceApplied) {
    if (!settings.onboarded || settings.autoUpdate == AutoUpdate::off || settings.autoPaused ||
        !settings.lastAppliedSignature)
        return false;
    return !sinceApplied || *sinceApplied >= std::chrono::seconds(static_cast<int>(settings.autoUpdate));
}

bool Schedule::isIdle(std::optional<Seconds> sinceLastInput) {
    return sinceLastInput && *sinceLastInput > idleThreshold;
}

bool Schedule::isChangedByHand(const AppSettings& settings, const QStringList& signature) {
    return settings.autoUpdate != AutoUpdate::off && !settings.autoPaused && settings.lastAppliedSignature &&
           *settings.lastAppliedSignature != signature;
}

} // namespace Kelvane
