#include "DockCore/Settings.h"

#include "DockCore/Profile.h"
#include "DockCore/Storage/JSONRecord.h"

using namespace Qt::StringLiterals;

namespace DockCore {

template <>
struct JSONForm<AutoUpdate> {
    static QJsonValue write(AutoUpdate interval) { return static_cast<int>(interval); }
    static std::optional<AutoUpdate> read(const QJsonValue& json) {
        const std::optional<qint64> seconds = JSONForm<qint64>::read(json);
        return seconds ? autoUpdate(*seconds) : std::nullopt;
    }
};

namespace {
constexpr auto settingsKeys = [](auto& keys, auto& settings) {
    keys.required(u"onboarded", settings.onboarded);
    keys.optional(u"activeProfileID", settings.activeProfileID);
    keys.required(u"autoUpdate", settings.autoUpdate);
    keys.required(u"trackingEnabled", settings.trackingEnabled);
    keys.required(u"autoPaused", settings.autoPaused);
    keys.optional(u"lastAppliedSignature", settings.lastAppliedSignature);
    keys.optional(u"lastApplied", settings.lastApplied);
};
} // namespace

const QList<AutoUpdate>& allAutoUpdates() {
    static const QList<AutoUpdate> intervals = {AutoUpdate::off, AutoUpdate::hourly, AutoUpdate::every4Hours,
                                                AutoUpdate::daily};
    return intervals;
}

std::optional<AutoUpdate> autoUpdate(qint64 seconds) {
    for (const AutoUpdate interval : allAutoUpdates()) {
        if (static_cast<qint64>(interval) == seconds)
            return interval;
    }
    return std::nullopt;
}

QString title(AutoUpdate interval) {
    switch (interval) {
    case AutoUpdate::off:
        return u"Off — only when I ask"_s;
    case AutoUpdate::hourly:
        return u"Every hour"_s;
    case AutoUpdate::every4Hours:
        return u"Every 4 hours"_s;
    case AutoUpdate::daily:
        return u"Once a day"_s;
    }
    Q_UNREACHABLE();
}

QJsonValue AppSettings::toJson() const {
    return JSONRecord::write(*this, settingsKeys);
}

std::optional<AppSettings> AppSettings::fromJson(const QJsonValue& json) {
    return JSONRecord::read<AppSettings>(json, settingsKeys);
}

} // namespace DockCore
