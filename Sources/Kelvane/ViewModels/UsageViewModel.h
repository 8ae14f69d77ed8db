#pragma once

#include "DockCore/UsageWindow.h"
#include "Kelvane/ViewModels/DayBar.h"
#include "Kelvane/ViewModels/RankingRow.h"
#include "Kelvane/ViewModels/RowListOf.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace Kelvane {

class AppModel;

/// State of the usage pane: the ranking over one of the windows and the days it was measured on.
/// The window chosen here changes no profile. Main thread only.
class UsageViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(int windowIndex READ windowIndex WRITE setWindowIndex NOTIFY changed)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY changed)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed)
    Q_PROPERTY(QString total READ total NOTIFY changed)
    /// "active · Last 7 days".
    Q_PROPERTY(QString totalCaption READ totalCaption NOTIFY changed)
    Q_PROPERTY(Kelvane::RowListModel* ranking READ ranking CONSTANT)
    Q_PROPERTY(Kelvane::RowListModel* days READ days CONSTANT)
    /// The application whose row shows where its points come from; empty when none does.
    Q_PROPERTY(QString openedApp MEMBER m_openedApp NOTIFY openedAppChanged)
    /// The pane has not been shown yet: its bars grow this once.
    Q_PROPERTY(bool firstShow MEMBER m_firstShow NOTIFY firstShowChanged)

public:
    explicit UsageViewModel(AppModel& model);
    static UsageViewModel* create(QQmlEngine* engine, QJSEngine*);

    int windowIndex() const;
    void setWindowIndex(int index);
    QString subtitle() const;
    /// Whether no window has anything to rank; one that has is reached by its choice.
    bool isEmpty() const;
    QString total() const;
    QString totalCaption() const;
    RowListOf<RankingRow>* ranking() { return &m_ranking; }
    RowListOf<DayBar>* days() { return &m_days; }

Q_SIGNALS:
    void changed();
    void openedAppChanged();
    void firstShowChanged();

private:
    void reload();

    AppModel& m_model;
    DockCore::UsageWindow m_window = DockCore::UsageWindow::week;
    RowListOf<RankingRow> m_ranking;
    RowListOf<DayBar> m_days;
    QString m_openedApp;
    bool m_firstShow = true;
};

} // namespace Kelvane
