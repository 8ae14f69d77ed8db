#include "Kelvane/Shell/StatusMenu.h"

#include "Kelvane/AppModel.h"

#include <QAction>
#include <QIcon>
#include <QKeySequence>

using namespace DockCore;
using namespace Qt::StringLiterals;

namespace Kelvane {

namespace {
// A menu title takes one ampersand as the mark of a key; a profile's name means it as it stands.
QString literal(QString title) {
    return title.replace(u'&', u"&&"_s);
}
} // namespace

StatusMenu::StatusMenu(AppModel& model, Symbols symbols)
    : m_model(model)
    , m_symbols(std::move(symbols)) {
    connect(&m_menu, &QMenu::aboutToShow, this, &StatusMenu::rebuild);
    rebuild();
}

void StatusMenu::rebuild() {
    m_menu.clear();
    addProfiles();
    m_menu.addSeparator();
    addDockCommands();
    if (m_model.settings().autoPaused)
        addPause();
    m_menu.addSeparator();
    addApplicationCommands();
    // What stands here is never the application's own menu to rearrange.
    const QList<QAction*> actions = m_menu.actions();
    for (QAction* action : actions)
        action->setMenuRole(QAction::NoRole);
}

void StatusMenu::addProfiles() {
    m_menu.addAction(u"Profile"_s)->setEnabled(false);
    const QUuid active = m_model.activeProfile().id;
    for (const Profile& profile : m_model.profiles()) {
        QAction* action = m_menu.addAction(m_symbols(profile.symbol), literal(profile.name));
        action->setCheckable(true);
        action->setChecked(profile.id == active);
        action->setIconVisibleInMenu(true);
        connect(action, &QAction::triggered, this,
                [this, id = profile.id] { m_model.activate(id, AppModel::Apply::yes); });
    }
}

void StatusMenu::addDockCommands() {
    QAction* reorganize = m_menu.addAction(u"Reorganize Dock Now"_s, QKeySequence(Qt::CTRL | Qt::Key_R));
    connect(reorganize, &QAction::triggered, this, [this] { m_model.refreshAndApply(AppModel::Notify::always); });
    QAction* restore = m_menu.addAction(u"Restore Previous Dock"_s, QKeySequence(Qt::CTRL | Qt::Key_Z));
    restore->setEnabled(m_model.previousSnapshot().has_value());
    connect(restore, &QAction::triggered, this, [this] { m_model.restorePrevious(); });
}

void StatusMenu::addPause() {
    m_menu.addSeparator();
    m_menu.addAction(u"Automatic updates paused"_s)->setEnabled(false);
    QAction* resume = m_menu.addAction(u"Resume and Reorganize"_s);
    connect(resume, &QAction::triggered, this, [this] { m_model.refreshAndResume(); });
}

void StatusMenu::addApplicationCommands() {
    QAction* track = m_menu.addAction(u"Track App Usage"_s);
    track->setCheckable(true);
    track->setChecked(m_model.settings().trackingEnabled);
    connect(track, &QAction::triggered, this, [this] { m_model.setTracking(!m_model.settings().trackingEnabled); });
    QAction* open = m_menu.addAction(u"Open Kelvane…"_s, QKeySequence(Qt::CTRL | Qt::Key_O));
    connect(open, &QAction::triggered, this, &StatusMenu::openRequested);
    m_menu.addSeparator();
    QAction* quit = m_menu.addAction(u"Quit Kelvane"_s, QKeySequence(Qt::CTRL | Qt::Key_Q));
    connect(quit, &QAction::triggered, this, &StatusMenu::quitRequested);
}

} // namespace Kelvane
