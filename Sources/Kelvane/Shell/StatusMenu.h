#pragma once

#include <QMenu>
#include <QObject>

#include <functional>

class QIcon;

namespace Kelvane {

class AppModel;

/// The menu of the status item, built anew each time it opens. It calls one operation of the model a command; opening
/// the window and quitting are the owner's. Main thread only.
class StatusMenu : public QObject {
    Q_OBJECT

public:
    /// Gives the image of a symbol by its name.
    using Symbols = std::function<QIcon(const QString& name)>;

    StatusMenu(AppModel& model, Symbols symbols);

    QMenu& menu() { return m_menu; }
    void rebuild();

Q_SIGNALS:
    void openRequested();
    void quitRequested();

private:
    void addProfiles();
    void addDockCommands();
    void addPause();
    void addApplicationCommands();

    AppModel& m_model;
    Symbols m_symbols;
    QMenu m_menu;
};

} // namespace Kelvane
