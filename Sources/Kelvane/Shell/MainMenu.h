#pragma once

#include <QMenuBar>
#include <QObject>

namespace Kelvane {

/// The standard menus, shown in the system's menu bar where there is one. Elsewhere nobody sees them, and their keys
/// are taken from the events of the application's windows. Main thread only.
class MainMenu : public QObject {
    Q_OBJECT

public:
    /// Who makes the menu that bears the application's name. The system's has its own item for hiding.
    enum class ApplicationMenu { ours, systems };

    explicit MainMenu(ApplicationMenu applicationMenu);

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
    void addAbout(QMenu& menu) const;
    void addQuit(QMenu& menu) const;
    void addEditMenu();
    QMenu& addWindowMenu();

    QMenuBar m_bar;
};

} // namespace Kelvane
