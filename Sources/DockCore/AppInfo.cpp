#include "DockCore/AppInfo.h"

#include "DockCore/Ports/Bundles.h"
#include "DockCore/Storage/JSONRecord.h"

#include <QHashFunctions>

using namespace Qt::StringLiterals;

namespace DockCore {

namespace {
constexpr auto appKeys = [](auto& keys, auto& app) {
    keys.required(u"bundleID", app.bundleID);
    keys.required(u"name", app.name);
    keys.required(u"path", app.path);
};
} // namespace

std::optional<AppInfo> AppInfo::fromBundle(const QString& path, Bundles& bundles) {
    const std::optional<QString> bundleID = bundles.identifier(path);
    // An empty identifier identifies nothing.
    if (!bundleID || bundleID->isEmpty())
        return std::nullopt;
    QString name = bundles.displayName(path);
    if (name.endsWith(".app"_L1))
        name.chop(4);
    return AppInfo{*bundleID, name, path};
}

QJsonValue AppInfo::toJson() const {
    return JSONRecord::write(*this, appKeys);
}

std::optional<AppInfo> AppInfo::fromJson(const QJsonValue& json) {
    return JSONRecord::read<AppInfo>(json, appKeys);
}

size_t qHash(const AppInfo& app, size_t seed) {
    return qHashMulti(seed, app.bundleID, app.name, app.path);
}

bool isApplicationPath(QStringView path) {
    const QStringView name = path.sliced(path.lastIndexOf(u'/') + 1);
    return name.size() > 4 && name.endsWith(u".app");
}

} // namespace DockCore
