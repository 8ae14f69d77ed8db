#pragma once

#include <QObject>
#include <QString>

namespace Kelvane {

/// One ranked application as the usage pane shows it. A plain value.
struct RankingRow {
    Q_GADGET
    Q_PROPERTY(int rank MEMBER rank)
    Q_PROPERTY(QString bundleID MEMBER bundleID)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString detail MEMBER detail)
    Q_PROPERTY(QString reason MEMBER reason)
    Q_PROPERTY(QString description READ description)
    Q_PROPERTY(double share MEMBER share)

public:
    int rank = 0;
    QString bundleID;
    QString name;
    QString detail;
    /// Where its points come from.
    QString reason;
    /// Its score in proportion to the best one, 0 to 1.
    double share = 0;

    bool operator==(const RankingRow&) const = default;
    QString key() const { return bundleID; }
    /// Detail and reason in one, for reading out.
    QString description() const { return detail + QStringLiteral(". ") + reason; }
};

} // namespace Kelvane
