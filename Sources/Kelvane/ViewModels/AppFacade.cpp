#include "Kelvane/ViewModels/AppFacade.h"

#include "Kelvane/AppModel.h"
#include "Kelvane/ViewModels/IconAddress.h"
#include "Kelvane/ViewModels/ViewContext.h"

#include <array>

namespace Kelvane {

using namespace Qt::StringLiterals;

namespace {

struct PaneView {
    QString name;
    QString file;
    /// It has a bar of its own along the window's edge.
    bool hasBar;
};
/// By the order of `Pane`.
const std::array<PaneView, 5> views = {
    PaneView{u"dock"_s, u"DockPane.qml"_s, true}, PaneView{u"usage"_s, u"UsagePane.qml"_s, false},
    PaneView{u"profiles"_s, u"ProfilesPane.qml"_s, true}, PaneView{u"history"_s, u"HistoryPane.qml"_s, false},
    PaneView{u"settings"_s, u"SettingsPane.qml"_s, false}};
const PaneView firstRun = {u"onboarding"_s, u"OnboardingView.qml"_s, true};

} // namespace

AppFacade::AppFacade(AppModel& model)
    : m_model(model) {
    connect(&model, &AppModel::paneChanged, this, &AppFacade::paneChanged);
    connect(&model, &AppModel::paneChanged, this, &AppFacade::contentChanged);
    connect(&model, &AppModel::settingsChanged, this, &AppFacade::settingsChanged);
    connect(&model, &AppModel::settingsChanged, this, &AppFacade::contentChanged);
    connect(&model, &AppModel::settingsChanged, this, &AppFacade::activeProfileChanged);
    connect(&model, &AppModel::profilesChanged, this, &AppFacade::activeProfileChanged);
    connect(&model, &AppModel::isWorkingChanged, this, &AppFacade::isWorkingChanged);
    connect(&model, &AppModel::toastChanged, this, &AppFacade::toastChange);
    m_toastTimer.setSingleShot(true);
    m_toastTimer.setInterval(toastMilliseconds);
    toastChange();
}

AppFacade* AppFacade::create(QQmlEngine*, QJSEngine*) {
    return new AppFacade(ViewContext::current().model);
}

QString AppFacade::pane() const {
    return views.at(static_cast<size_t>(m_model.pane())).name;
}

void AppFacade::setPane(const QString& pane) {
    for (size_t index = 0; index < views.size(); ++index) {
        if (views[index].name == pane)
            m_model.setPane(static_cast<Pane>(index));
    }
}

bool AppFacade::isFirstRun() const {
    return m_content == Content::bySettings ? !m_model.settings().onboarded : m_content == Content::firstRun;
}

QUrl AppFacade::contentSource() const {
    const PaneView& view = isFirstRun() ? firstRun : views.at(static_cast<size_t>(m_model.pane()));
    return QUrl(u"qrc:/qt/qml/Kelvane/"_s + view.file);
}

bool AppFacade::paneHasBar() const {
    return views.at(static_cast<size_t>(m_model.pane())).hasBar;
}

void AppFacade::setContent(Content content) {
    m_content = content;
    Q_EMIT contentChanged();
}

bool AppFacade::isWorking() const {
    return m_model.isWorking();
}

bool AppFacade::isCapturing() const {
    return m_model.isCapturing();
}

bool AppFacade::isAutoPaused() const {
    return m_model.settings().autoPaused;
}

QString AppFacade::profileName() const {
    return m_model.activeProfile().name;
}

QString AppFacade::profileSymbol() const {
    return m_model.activeProfile().symbol;
}

QString AppFacade::toastText() const {
    return m_model.toast() ? m_model.toast()->text : QString();
}

bool AppFacade::toastIsError() const {
    return m_model.toast() && m_model.toast()->isError;
}

QString AppFacade::iconSource(const QString& bundleID, const QString& name) {
    return IconAddress{bundleID, name, {}}.url();
}

void AppFacade::toastChange() {
    m_toastTimer.stop();
    m_toastTimer.disconnect(this);
    if (const std::optional<Toast> toast = m_model.toast()) {
        connect(&m_toastTimer, &QTimer::timeout, this, [this, shown = *toast] { m_model.dismiss(shown); });
        m_toastTimer.start();
    }
    Q_EMIT toastChanged();
}

} // namespace Kelvane
