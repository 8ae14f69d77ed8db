#include "DockCore/Settings.h"

#include "DockCore/Profile.h"
#include "DockCore/Storage/JSONFile.h"

#include <QJsonArray>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace DockCore {

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
    QJsonObject object = {
        {u"onboarded"_s, onboarded},
        {u"autoUpdate"_s, static_cast<qint64>(autoUpdate)},
        {u"trackingEnabled"_s, trackingEnabled},
        {u"autoPaused"_s, autoPaused},
    };
    if (activeProfileID)
        object.insert("activeProfileID"_L1, uuidString(*activeProfileID));
    if (lastAppliedSignature)
        object.insert("lastAppliedSignature"_L1, QJsonArray::fromStringList(*lastAppliedSignature));
    if (lastApplied)
        object.insert("lastApplied"_L1, JSONFile::dateString(*lastApplied));
    return object;
}

std::optional<AppSettings> AppSettings::fromJson(const QJsonValue& json) {
    const QJsonObject object = json.toObject();
    const auto onboarded = JSONFile::boolean(object["onboarded"_L1]);
    const auto seconds = JSONFile::integer(object["autoUpdate"_L1]);
    const auto interval = seconds ? DockCore::autoUpdate(*seconds) : std::nullopt;
    const auto trackingEnabled = JSONFile::boolean(object["trackingEnabled"_L1]);
    const auto autoPaused = JSONFile::boolean(object["autoPaused"_L1]);
    if (!onboarded || !interval || !trackingEnabled || !autoPaused)
        return std::nullopt;

    const QJsonValue profileID = object["activeProfileID"_L1];
    const auto activeProfileID = uuidFromString(profileID.toString());
    const QJsonValue signature = object["lastAppliedSignature"_L1];
    const auto lastAppliedSignature = JSONFile::strings(signature);
    const QJsonValue applied = object["lastApplied"_L1];
    const auto lastApplied = JSONFile::date(applied);
    if ((!activeProfileID && !JSONFile::isAbsent(profileID)) ||
        (!lastAppliedSignature && !JSONFile::isAbsent(signature)) || (!lastApplied && !JSONFile::isAbsent(applied)))
        return std::nullopt;

    return AppSettings{*onboarded,  activeProfileID,      *interval,  *trackingEnabled,
                       *autoPaused, lastAppliedSignature, lastApplied};
}

} // namespace DockCore
