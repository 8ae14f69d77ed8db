#pragma once

#include "Kelvane/Ports/Desktop.h"
#include "Kelvane/ViewModels/AppFacade.h"

#include <QList>
#include <QObject>
#include <QString>

#include <chrono>

namespace Kelvane {

class AppModel;
class MainWindow;

/// Renders every pane and every step of the first run, light and dark, into PNG files that are named after them, one
/// after another. What cannot be rendered is left out. It brings the window and the model into each state and leaves
/// them in the last: the program is expected to end. Main thread only.
class ScreenImages : public QObject {
    Q_OBJECT

public:
    ScreenImages(AppModel& model, Desktop& desktop, MainWindow& window, const QString& folder);

    /// Opens the window and begins; `finished` follows after the last picture.
    void start();

    /// How long the views get to settle before a picture.
    static constexpr std::chrono::milliseconds settling{1500};

Q_SIGNALS:
    void finished();

private:
    struct Shot {
        QString name;
        Desktop::Appearance appearance;
        AppFacade::Content content;
        /// The step of the first run, or the number of the pane.
        int place;
    };

    void prepare(qsizetype index);
    void take(qsizetype index);

    AppModel& m_model;
    Desktop& m_desktop;
    MainWindow& m_window;
    QString m_folder;
    QList<Shot> m_shots;
};

} // namespace Kelvane
