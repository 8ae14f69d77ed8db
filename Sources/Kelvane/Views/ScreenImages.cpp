#include "Kelvane/Views/ScreenImages.h"

#include "Kelvane/AppModel.h"
#include "Kelvane/ViewModels/FirstRunViewModel.h"
#include "Kelvane/Views/MainWindow.h"

#include <QDir>
#include <QTimer>

namespace Kelvane {

using namespace Qt::StringLiterals;

ScreenImages::ScreenImages(AppModel& model, Desktop& desktop, MainWindow& window, const QString& folder)
    : m_model(model)
    , m_desktop(desktop)
    , m_window(window)
    , m_folder(folder) {
    for (const Desktop::Appearance appearance : {Desktop::Appearance::light, Desktop::Appearance::dark}) {
        const QString suffix = appearance == Desktop::Appearance::light ? u"-light"_s : u"-dark"_s;
        for (int step = 0; step <= FirstRunViewModel::lastStep; ++step)
            m_shots.append({u"onboarding-"_s + QString::number(step + 1) + suffix, appearance,
                            AppFacade::Content::firstRun, step});
        for (int pane = 0; pane < allPanes().size(); ++pane)
            m_shots.append({allPanes()[pane].name + suffix, appearance, AppFacade::Content::panes, pane});
    }
}

void ScreenImages::start() {
    QDir().mkpath(m_folder);
    m_model.setCapturing(true);
    m_window.show();
    prepare(0);
}

void ScreenImages::prepare(qsizetype index) {
    const Shot& shot = m_shots[index];
    m_desktop.setAppearance(shot.appearance);
    m_window.setContent(shot.content);
    if (shot.content == AppFacade::Content::firstRun)
        m_model.setOnboardingStep(shot.place);
    else
        m_model.setPane(static_cast<Pane>(shot.place));
    QTimer::singleShot(settling, this, [this, index] { take(index); });
}

void ScreenImages::take(qsizetype index) {
    if (const std::optional<QImage> image = m_window.grab())
        image->save(m_folder + u'/' + m_shots[index].name + u".png"_s, "PNG");
    if (index + 1 < m_shots.size())
        prepare(index + 1);
    else
        Q_EMIT finished();
}

} // namespace Kelvane
