#pragma once

#include <QObject>
#include <QString>

namespace Kelvane {

/// One application that can be picked. A plain value.
struct AppPickerRow {
    Q_GADGET
    Q_PROPERTY(QString section MEMBER section)
    Q_PROPERTY(QString bundleID MEMBER bundleID)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(bool isAdded MEMBER isAdded)

public:
    QString section;
    QString bundleID;
    QString name;
    /// Already in the list that is being added to.
    bool isAdded = false;

    bool operator==(const AppPickerRow&) const = default;
    QString key() const { return section + u'\n' + bundleID; }
};

} // namespace Kelvane
