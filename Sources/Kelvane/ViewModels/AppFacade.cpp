#include "Kelvane/ViewModels/AppFacade.h"

#include "Kelvane/AppModel.h"
#include "Kelvane/ViewModels/IconAddress.h"

#include <QQmlEngine>

namespace Kelvane {

using namespace Qt::StringLiterals;

namespace {
const QString firstRunFile = u"OnboardingView.qml"_s;
} // namespace

AppFacade::AppFacade(AppModel& model, Desktop& desktop)
    : m_model(model)
    , m_desktop(desktop) {
    m_panes.setRows(allPanes());
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

AppFacade* AppFacade::create(QQmlEngine* engine, QJSEngine*) {
    AppFacade* facade = &of(*engine);
    QJSEngine::setObjectOwnership(facade, QJSEngine::CppOwnership);
    return facade;
}

AppFacade& AppFacade::of(const QQmlEngine& engine) {
    auto* facade = qobject_cast<AppFacade*>(engine.parent());
    if (facade == nullptr)
        qFatal("The parent of the engine is no AppFacade");
    return *facade;
}

QString AppFacade::pane() const {
    return info(m_model.pane()).name;
}

void AppFacade::setPane(const QString& pane) {
    for (qsizetype index = 0; index < allPanes().size(); ++index) {
        if (allPanes()[index].name == pane)
            m_model.setPane(static_cast<Pane>(index));
    }
}

bool AppFacade::isFirstRun() const {
    return m_content == Content::bySettings ? !m_model.settings().onboarded : m_content == Content::firstRun;
}

QUrl AppFacade::contentSource() const {
    return QUrl(u"qrc:/qt/qml/Kelvane/"_s + (isFirstRun() ? firstRunFile : info(m_model.pane()).file));
}

bool AppFacade::paneHasBar() const {
    return info(m_model.pane()).hasBar;
}

void AppFacade::setContent(Content content) {
    m_content = content;
    Q_EMIT contentChanged();
}

bool AppFacade::isWorking() const {
    return m_model.isWorking();
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

QStringList AppFacade::usageWindows() const {
    QStringList titles;
    for (const DockCore::UsageWindow window : DockCore::allUsageWindows())
        titles += title(window);
    return titles;
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

void AppFacade::resume() {
    m_model.refreshAndResume();
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
