#include "Kelvane/ViewModels/AppNames.h"

#include "DockCore/AppCatalog.h"
#include "DockCore/UsageStore.h"
#include "Kelvane/AppModel.h"
#include "Kelvane/ViewModels/IconAddress.h"

namespace Kelvane {

AppNames::AppNames(const AppModel& model)
    : AppNames(model.catalog(), model.usage()) {}

AppNames::AppNames(DockCore::AppCatalog& catalog, const DockCore::UsageStore& usage)
    : m_catalog(catalog)
    , m_usage(usage) {}

bool AppNames::isInstalled(const QString& bundleID) const {
    return m_catalog.isInstalled(bundleID);
}

QString AppNames::name(const QString& bundleID) const {
    if (const auto app = m_catalog.info(bundleID))
        return app->name;
    return m_usage.name(bundleID).value_or(bundleID);
}

QStringList AppNames::names(const QStringList& bundleIDs) const {
    QStringList result;
    for (const QString& bundleID : bundleIDs)
        result += name(bundleID);
    return result;
}

QStringList AppNames::icons(const QStringList& bundleIDs) const {
    QStringList result;
    for (const QString& bundleID : bundleIDs)
        result += IconAddress{bundleID, name(bundleID), {}}.url();
    return result;
}

} // namespace Kelvane
