#pragma once

#include <QJsonValue>
#include <QString>

#include <optional>

namespace DockCore {

class Bundles;

/// One installed application. A plain value.
struct AppInfo {
    QString bundleID;
    /// What a person calls it, without ".app".
    QString name;
    QString path;

    bool operator==(const AppInfo&) const = default;

    /// The application in the bundle at `path`; nothing when it is no readable bundle or has no identifier.
    static std::optional<AppInfo> fromBundle(const QString& path, Bundles& bundles);

    QJsonValue toJson() const;
    /// Every key is required and a string; extra keys are ignored.
    static std::optional<AppInfo> fromJson(const QJsonValue& json);
};

size_t qHash(const AppInfo& app, size_t seed = 0);

/// The path is that of an application folder: its last part is a name before ".app".
bool isApplicationPath(QStringView path);

} // namespace DockCore
