#include "Kelvane/ViewModels/AppNames.h"

#include "DockCore/AppCatalog.h"
#include "DockCore/UsageStore.h"
#include "Kelvane/ViewModels/IconAddress.h"

namespace Kelvane::AppNames {

QString name(const QString& bundleID, const DockCore::UsageStore& usage) {
    if (const auto app = DockCore::AppCatalog::shared().info(bundleID))
        return app->name;
    return usage.name(bundleID).value_or(bundleID);
}

QStringList names(const QStringList& bundleIDs, const DockCore::UsageStore& usage) {
    QStringList result;
    for (const QString& bundleID : bundleIDs)
        result += name(bundleID, usage);
    return result;
}

QStringList icons(const QStringList& bundleIDs, const DockCore::UsageStore& usage) {
    QStringList result;
    for (const QString& bundleID : bundleIDs)
        result += IconAddress{bundleID, name(bundleID, usage), {}}.url();
    return result;
}

} // namespace Kelvane::AppNames
