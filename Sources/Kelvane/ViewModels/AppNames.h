#pragma once

#include <QString>
#include <QStringList>

namespace DockCore {
class UsageStore;
}

namespace Kelvane {

/// What an application is called on screen, and where its icon comes from. Main thread only.
namespace AppNames {

/// The catalog's name, else the one recorded with its usage, else the identifier itself.
QString name(const QString& bundleID, const DockCore::UsageStore& usage);
QStringList names(const QStringList& bundleIDs, const DockCore::UsageStore& usage);
/// The sources of their icons; the name is what a stand-in takes its initial from.
QStringList icons(const QStringList& bundleIDs, const DockCore::UsageStore& usage);

} // namespace AppNames
} // namespace Kelvane
