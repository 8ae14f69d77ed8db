#pragma once

#include <QMenuBar>
#include <QObject>

namespace Kelvane {

/// The standard menus, shown in the system's menu bar where there is one. Elsewhere nobody sees them, and their keys
/// are taken from the events of the application's windows. Main thread only.
class MainMenu : public QObject {
    Q_OBJECT

public:
    MainMenu();

    QMenuBar& bar() { return m_bar; }

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void aboutRequested();
    void hideRequested();
    void quitRequested();
    void closeRequested();
    void minimizeRequested();

private:
    void addApplicationMenu();
    void addEditMenu();
    void addWindowMenu();

    QMenuBar m_bar;
};

} // namespace Kelvane
