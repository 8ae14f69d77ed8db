#pragma once

#include <QList>
#include <QObject>
#include <QString>

namespace Kelvane {

/// The panes of the main window, in the sidebar's order.
enum class Pane { dock, usage, profiles, history, settings };

/// What the window knows of a pane before it shows it. A plain value.
struct PaneInfo {
    Q_GADGET
    Q_PROPERTY(QString pane MEMBER name)
    Q_PROPERTY(QString text MEMBER title)
    Q_PROPERTY(QString symbol MEMBER symbol)

public:
    /// Its raw value; its pictures are named after it, too.
    QString name;
    QString title;
    QString symbol;
    /// Its view in the QML module.
    QString file;
    /// It has a bar of its own along the window's edge.
    bool hasBar = false;

    bool operator==(const PaneInfo&) const = default;
    QString key() const { return name; }
};

/// One for each `Pane`, in the same order.
inline const QList<PaneInfo>& allPanes() {
    using namespace Qt::StringLiterals;
    static const QList<PaneInfo> panes = {
        {u"dock"_s, u"Dock"_s, u"dock.rectangle"_s, u"DockPane.qml"_s, true},
        {u"usage"_s, u"Usage"_s, u"chart.bar.xaxis"_s, u"UsagePane.qml"_s, false},
        {u"profiles"_s, u"Profiles"_s, u"square.stack.3d.up"_s, u"ProfilesPane.qml"_s, true},
        {u"history"_s, u"History"_s, u"clock.arrow.circlepath"_s, u"HistoryPane.qml"_s, false},
        {u"settings"_s, u"Settings"_s, u"gearshape"_s, u"SettingsPane.qml"_s, false}};
    return panes;
}

inline const PaneInfo& info(Pane pane) {
    return allPanes().at(static_cast<qsizetype>(pane));
}

} // namespace Kelvane
