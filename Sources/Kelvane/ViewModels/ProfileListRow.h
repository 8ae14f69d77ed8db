#pragma once

#include "DockCore/Profile.h"

#include <QObject>
#include <QString>

namespace Kelvane {

/// One profile of a list. A plain value.
struct ProfileListRow {
    Q_GADGET
    Q_PROPERTY(QString profileId MEMBER profileId)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(QString ordinal MEMBER ordinal)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(bool isActive MEMBER isActive)

public:
    QString profileId;
    QString name;
    QString symbol;
    /// Tells a name apart from the same name above it, as "2"; empty for the first of its name.
    QString ordinal;
    /// Name and ordinal in one.
    QString title;
    bool isActive = false;

    bool operator==(const ProfileListRow&) const = default;
    QString key() const { return profileId; }

    /// One row a profile, in the user's order; a name without letters is called "Untitled".
    static QList<ProfileListRow> listed(const QList<DockCore::Profile>& profiles, const QUuid& active);
};

} // namespace Kelvane
