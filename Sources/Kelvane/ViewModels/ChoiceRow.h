#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

namespace Kelvane {

/// One profile to start with. A plain value.
struct ChoiceRow {
    Q_GADGET
    Q_PROPERTY(QString profileId MEMBER profileId)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(QString line MEMBER line)
    Q_PROPERTY(QStringList icons MEMBER icons)
    Q_PROPERTY(bool isChosen MEMBER isChosen)

public:
    QString profileId;
    QString name;
    QString symbol;
    /// "With 8 apps by usage · Last 7 days".
    QString line;
    /// The sources of the first icons of what the profile would make of the Dock.
    QStringList icons;
    bool isChosen = false;

    bool operator==(const ChoiceRow&) const = default;
    QString key() const { return profileId; }
};

} // namespace Kelvane
