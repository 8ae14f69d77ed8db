#pragma once

#include "Kelvane/Pane.h"
#include "Kelvane/ViewModels/RowListOf.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace Kelvane {

class AppModel;
class Desktop;

/// The application as every view sees it: `App` in QML. It shows the model's state in the words of the window and hands
/// each action to one operation of the model; what only one pane needs is in that pane's own view model. The engine
/// that draws a window is a child of the window's facade, which is where the other view models find their model. Main
/// thread only.
class AppFacade : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(App)
    QML_SINGLETON
    Q_PROPERTY(Kelvane::RowListModel* panes READ panes CONSTANT)
    /// The raw value of the selected pane: "dock", "usage", "profiles", "history" or "settings".
    Q_PROPERTY(QString pane READ pane WRITE setPane NOTIFY paneChanged)
    /// The first-run flow takes the place of the panes.
    Q_PROPERTY(bool firstRun READ isFirstRun NOTIFY contentChanged)
    /// The file of the view that fills the detail area.
    Q_PROPERTY(QUrl contentSource READ contentSource NOTIFY contentChanged)
    /// The pane has a bar of its own along the window's edge.
    Q_PROPERTY(bool paneHasBar READ paneHasBar NOTIFY contentChanged)
    Q_PROPERTY(bool working READ isWorking NOTIFY isWorkingChanged)
    Q_PROPERTY(bool autoPaused READ isAutoPaused NOTIFY settingsChanged)
    Q_PROPERTY(QString profileName READ profileName NOTIFY activeProfileChanged)
    Q_PROPERTY(QString profileSymbol READ profileSymbol NOTIFY activeProfileChanged)
    /// The titles of the windows over which usage is measured.
    Q_PROPERTY(QList<QString> usageWindows READ usageWindows CONSTANT)
    /// Empty while there is no toast.
    Q_PROPERTY(QString toastText READ toastText NOTIFY toastChanged)
    Q_PROPERTY(bool toastIsError READ toastIsError NOTIFY toastChanged)

public:
    AppFacade(AppModel& model, Desktop& desktop);
    static AppFacade* create(QQmlEngine* engine, QJSEngine*);

    /// The facade of the window that `engine` draws.
    static AppFacade& of(const QQmlEngine& engine);
    AppModel& model() { return m_model; }
    Desktop& desktop() { return m_desktop; }

    RowListOf<PaneInfo>* panes() { return &m_panes; }
    QString pane() const;
    void setPane(const QString& pane);
    bool isFirstRun() const;
    QUrl contentSource() const;
    bool paneHasBar() const;
    /// What the window shows: by the settings, or one of the two for a picture.
    enum class Content { bySettings, firstRun, panes };
    void setContent(Content content);
    bool isWorking() const;
    bool isAutoPaused() const;
    QString profileName() const;
    QString profileSymbol() const;
    QStringList usageWindows() const;
    QString toastText() const;
    bool toastIsError() const;

    /// The source of an image of this application; `name` gives the stand-in its initial.
    Q_INVOKABLE static QString iconSource(const QString& bundleID, const QString& name);
    /// Ends the pause of automatic updates.
    Q_INVOKABLE void resume();

    /// How long a toast stays.
    static constexpr int toastMilliseconds = 3500;

Q_SIGNALS:
    void paneChanged();
    void contentChanged();
    void settingsChanged();
    void isWorkingChanged();
    void activeProfileChanged();
    void toastChanged();

private:
    void toastChange();

    AppModel& m_model;
    Desktop& m_desktop;
    RowListOf<PaneInfo> m_panes;
    Content m_content = Content::bySettings;
    /// Runs while a toast is shown; each toast restarts it.
    QTimer m_toastTimer;
};

} // namespace Kelvane
