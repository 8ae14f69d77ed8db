#pragma once

#include <QString>
#include <QStringList>

namespace DockCore {
class AppCatalog;
class UsageStore;
} // namespace DockCore

namespace Kelvane {

class AppModel;

/// The names and icons of applications on screen. References only: as short-lived as the call it is made for. Main
/// thread only.
class AppNames {
public:
    explicit AppNames(const AppModel& model);
    AppNames(DockCore::AppCatalog& catalog, const DockCore::UsageStore& usage);

    bool isInstalled(const QString& bundleID) const;
    /// The catalog's name, else the one recorded with its usage, else the identifier itself.
    QString name(const QString& bundleID) const;
    QStringList names(const QStringList& bundleIDs) const;
    /// The sources of their icons; a stand-in takes its initial from the name.
    QStringList icons(const QStringList& bundleIDs) const;

private:
    DockCore::AppCatalog& m_catalog;
    const DockCore::UsageStore& m_usage;
};

} // namespace Kelvane
