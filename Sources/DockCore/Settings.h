#pragma once

#include <QDateTime>
#include <QJsonValue>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUuid>

#include <optional>

namespace DockCore {

/// How often the active profile is applied by itself; the value is the interval in seconds.
enum class AutoUpdate { off = 0, hourly = 3600, every4Hours = 14400, daily = 86400 };

const QList<AutoUpdate>& allAutoUpdates();
std::optional<AutoUpdate> autoUpdate(qint64 seconds);
QString title(AutoUpdate interval);

/// The settings record. A plain value.
struct AppSettings {
    /// The first-run flow is done.
    bool onboarded = false;
    std::optional<QUuid> activeProfileID;
    AutoUpdate autoUpdate = AutoUpdate::daily;
    bool trackingEnabled = true;
    /// Automatic updates wait because the Dock was changed by hand.
    bool autoPaused = false;
    /// The Dock as this application last wrote or confirmed it, and when.
    std::optional<QStringList> lastAppliedSignature;
    std::optional<QDateTime> lastApplied;

    bool operator==(const AppSettings&) const = default;

    QJsonValue toJson() const;
    /// Every key but the three optional ones is required and of its type.
    static std::optional<AppSettings> fromJson(const QJsonValue& json);
};

} // namespace DockCore
