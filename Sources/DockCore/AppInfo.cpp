#include "DockCore/AppInfo.h"

#include "DockCore/Ports/Bundles.h"
#include "DockCore/Storage/JSONFile.h"

#include <QHashFunctions>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace DockCore {

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
    return QJsonObject{{u"bundleID"_s, bundleID}, {u"name"_s, name}, {u"path"_s, path}};
}

std::optional<AppInfo> AppInfo::fromJson(const QJsonValue& json) {
    const QJsonObject object = json.toObject();
    const auto bundleID = JSONFile::string(object["bundleID"_L1]);
    const auto name = JSONFile::string(object["name"_L1]);
    const auto path = JSONFile::string(object["path"_L1]);
    if (!bundleID || !name || !path)
        return std::nullopt;
    return AppInfo{*bundleID, *name, *path};
}

size_t qHash(const AppInfo& app, size_t seed) {
    return qHashMulti(seed, app.bundleID, app.name, app.path);
}

bool isApplicationPath(QStringView path) {
    const QStringView name = path.sliced(path.lastIndexOf(u'/') + 1);
    return name.size() > 4 && name.endsWith(u".app");
}

} // namespace DockCore
