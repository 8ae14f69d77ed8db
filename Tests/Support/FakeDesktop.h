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
    bool showAboutPanel() override {
        aboutPanels += hasAboutPanel ? 1 : 0;
        return hasAboutPanel;
    }
    void reveal(const QString& path) override { revealed.append(path); }

    QList<ActivationPolicy> policies;
    Appearance appearance = Appearance::system;
    /// Whether it has a panel about the application, and how often it showed it.
    bool hasAboutPanel = false;
    int aboutPanels = 0;
    QStringList revealed;
};

} // namespace Fakes
