#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <QUrl>

class QJSEngine;
class QQmlEngine;

namespace Kelvane {

class AppModel;

/// The application as every view sees it: `App` in QML. It shows the model's state in the words of the window and hands
/// each action to one operation of the model; what only one pane needs is in that pane's own view model.
/// Main thread only; the engine owns it.
class AppFacade : public QObject {
    Q_OBJECT
    /// The raw value of the selected pane: "dock", "usage", "profiles", "history" or "settings".
    Q_PROPERTY(QString pane READ pane WRITE setPane NOTIFY paneChanged)
    /// The first-run flow takes the place of the panes.
    Q_PROPERTY(bool firstRun READ isFirstRun NOTIFY contentChanged)
    /// The file of the view that fills the detail area.
    Q_PROPERTY(QUrl contentSource READ contentSource NOTIFY contentChanged)
    /// The pane has a bar of its own along the window's edge.
    Q_PROPERTY(bool paneHasBar READ paneHasBar NOTIFY contentChanged)
    Q_PROPERTY(bool working READ isWorking NOTIFY isWorkingChanged)
    /// Pictures are being taken: what would still move is to be where it ends.
    Q_PROPERTY(bool capturing READ isCapturing NOTIFY contentChanged)
    Q_PROPERTY(bool autoPaused READ isAutoPaused NOTIFY settingsChanged)
    Q_PROPERTY(QString profileName READ profileName NOTIFY activeProfileChanged)
    Q_PROPERTY(QString profileSymbol READ profileSymbol NOTIFY activeProfileChanged)
    /// Empty while there is no toast.
    Q_PROPERTY(QString toastText READ toastText NOTIFY toastChanged)
    Q_PROPERTY(bool toastIsError READ toastIsError NOTIFY toastChanged)

public:
    explicit AppFacade(AppModel& model);
    static AppFacade* create(QQmlEngine*, QJSEngine*);

    QString pane() const;
    void setPane(const QString& pane);
    bool isFirstRun() const;
    QUrl contentSource() const;
    bool paneHasBar() const;
    /// What the window shows: what the settings ask for, or one of the two for the sake of a picture.
    enum class Content { bySettings, firstRun, panes };
    void setContent(Content content);
    bool isWorking() const;
    bool isCapturing() const;
    bool isAutoPaused() const;
    QString profileName() const;
    QString profileSymbol() const;
    QString toastText() const;
    bool toastIsError() const;

    /// The source of an image of this application; `name` gives the stand-in its initial.
    Q_INVOKABLE static QString iconSource(const QString& bundleID, const QString& name);

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
    Content m_content = Content::bySettings;
    /// Runs while a toast is shown, anew for each.
    QTimer m_toastTimer;
};

} // namespace Kelvane
