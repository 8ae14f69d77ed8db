#pragma once

#include "Kelvane/Ports/Desktop.h"

#include <QStringList>

namespace Fakes {

/// A desktop that remembers what it was asked to show.
class Desktop : public Kelvane::Desktop {
public:
    void setActivationPolicy(ActivationPolicy policy) override { policies.append(policy); }
    void setAppearance(Appearance wanted) override { appearance = wanted; }
    void prepareMainWindow(QWindow&) override {}
    void reveal(const QString& path) override { revealed.append(path); }

    QList<ActivationPolicy> policies;
    Appearance appearance = Appearance::system;
    QStringList revealed;
};

} // namespace Fakes
