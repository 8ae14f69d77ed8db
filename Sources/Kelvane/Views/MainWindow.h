#pragma once

#include "Kelvane/ApplicationWindow.h"
#include "Kelvane/ViewModels/AppFacade.h"

#include <QImage>
#include <QPointer>

#include <memory>
#include <optional>

class QQmlApplicationEngine;
class QQmlComponent;
class QQuickWindow;

namespace Kelvane {

class Images;
class ScreenImages;

/// The main window. It is made the first time it is shown, with all of QML, and kept when it is closed; where it was is
/// remembered in the support folder. Destroy it before the application object. Main thread only.
class MainWindow : public ApplicationWindow {
    Q_OBJECT

public:
    /// What it is given outlives the window. A thread begins to read what the window is made of; what else there is to
    /// do before it is shown is best done meanwhile.
    MainWindow(AppModel& model, Desktop& desktop, Images& images);
    ~MainWindow() override;

    void show() override;
    void close() override;
    void minimize() override;
    bool isVisible() const override;
    void drawScreens(const QString& folder) override;
    /// What the window shows now, in its screen's resolution, on the gray of its appearance, under its title bar where
    /// the system draws it; nothing without a window.
    std::optional<QImage> grab() const;
    /// Shows the panes or the first run whatever the settings say, for pictures.
    void setContent(AppFacade::Content content) { m_facade.setContent(content); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void make();
    void place();
    void remember() const;
    void finishMaking();

    AppModel& m_model;
    Desktop& m_desktop;
    Images& m_images;
    AppFacade m_facade;
    std::unique_ptr<QQmlApplicationEngine> m_engine;
    std::unique_ptr<QQmlComponent> m_types;
    QPointer<QQuickWindow> m_window;
    std::unique_ptr<ScreenImages> m_screenImages;
};

} // namespace Kelvane
