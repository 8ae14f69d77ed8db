#pragma once

#include "Kelvane/Ports/Desktop.h"

#include <QStringList>

namespace Fakes {

/// A desktop that remembers what it was asked to show. It has no icons and no symbols of its own.
class Desktop : public Kelvane::Desktop {
public:
    void setActivationPolicy(ActivationPolicy policy) override { policies.append(policy); }
    void setAppearance(Appearance wanted) override { appearance = wanted; }
    void prepareMainWindow(QWindow&) override {}
    std::optional<QImage> applicationIcon(const QString&, int) override { return std::nullopt; }
    std::optional<QIcon> symbol(const QString&, const QString&) override { return std::nullopt; }
    void reveal(const QString& path) override { revealed.append(path); }

    QList<ActivationPolicy> policies;
    Appearance appearance = Appearance::system;
    QStringList revealed;
};

} // namespace Fakes
