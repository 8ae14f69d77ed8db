#pragma once

#include <QObject>
#include <QString>

namespace Kelvane {

/// One application of a profile's list; what is not installed stays in it. A plain value.
struct AppListRow {
    Q_GADGET
    Q_PROPERTY(QString bundleID MEMBER bundleID)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(bool isInstalled MEMBER isInstalled)
    Q_PROPERTY(bool isFirst MEMBER isFirst)
    Q_PROPERTY(bool isLast MEMBER isLast)

public:
    QString bundleID;
    QString name;
    bool isInstalled = false;
    bool isFirst = false;
    bool isLast = false;

    bool operator==(const AppListRow&) const = default;
    QString key() const { return bundleID; }
};

} // namespace Kelvane
