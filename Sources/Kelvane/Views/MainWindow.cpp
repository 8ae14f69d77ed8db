#include "Kelvane/Views/MainWindow.h"

#include "Kelvane/AppModel.h"
#include "Kelvane/Ports/Desktop.h"
#include "Kelvane/Ports/Images.h"
#include "Kelvane/ViewModels/Appearance.h"
#include "Kelvane/Views/IconProvider.h"
#include "Kelvane/Views/ScreenImages.h"
#include "Kelvane/Views/ShadowProvider.h"
#include "Kelvane/Views/SymbolCache.h"
#include "Kelvane/Views/WindowFrame.h"

#include <QDeadlineTimer>
#include <QEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QQmlIncubationController>
#include <QQuickWindow>
#include <QScreen>

/// What the QML module's registration is called; a static library would lose it unasked.
// NOLINTNEXTLINE(readability-identifier-naming): the name is made by Qt from the module's.
extern void qml_register_types_Kelvane();

namespace Kelvane {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {
/// A pane takes a tenth of a second.
constexpr auto longestMaking = 2s;
const QUrl source = QUrl(u"qrc:/qt/qml/Kelvane/MainWindow.qml"_s);
} // namespace

MainWindow::MainWindow(AppModel& model, Desktop& desktop, Images& images)
    : m_model(model)
    , m_desktop(desktop)
    , m_images(images)
    , m_facade(model, desktop) {
    qml_register_types_Kelvane();
    m_engine = std::make_unique<QQmlApplicationEngine>(&m_facade);
    // The engine owns them and goes first.
    m_engine->addImageProvider(u"icon"_s, new IconProvider(m_model.catalog(), m_images));
    m_engine->addImageProvider(u"shadow"_s, new ShadowProvider);
    new SymbolCache(m_images, m_engine.get());
    m_engine->addImportPath(u":/qt/qml"_s);
    m_types = std::make_unique<QQmlComponent>(m_engine.get(), source, QQmlComponent::Asynchronous);
}

MainWindow::~MainWindow() {
    if (m_window && m_window->isVisible())
        remember();
    finishMaking();
}

void MainWindow::finishMaking() {
    QQmlIncubationController* making = m_engine ? m_engine->incubationController() : nullptr;
    // The engine complains about what is half made when it goes.
    const QDeadlineTimer deadline(longestMaking);
    while (making != nullptr && making->incubatingObjectCount() > 0 && !deadline.hasExpired())
        making->incubateFor(static_cast<int>(deadline.remainingTime()));
}

void MainWindow::show() {
    if (!m_window)
        make();
    if (!m_window)
        return;
    const bool wasVisible = m_window->isVisible();
    if (m_window->visibility() == QWindow::Minimized)
        m_window->showNormal();
    else
        m_window->show();
    // Without a display nothing lies above anything else, and Qt complains when it is asked.
    if (wasVisible && QGuiApplication::platformName() != u"offscreen")
        m_window->raise();
    m_window->requestActivate();
}

void MainWindow::close() {
    if (m_window)
        m_window->close();
}

void MainWindow::minimize() {
    if (m_window)
        m_window->showMinimized();
}

bool MainWindow::isVisible() const {
    return m_window && m_window->isVisible();
}

void MainWindow::drawScreens(const QString& folder) {
    m_screenImages = std::make_unique<ScreenImages>(m_model, m_desktop, *this, folder);
    connect(m_screenImages.get(), &ScreenImages::finished, this, &MainWindow::screensDrawn);
    m_screenImages->start();
}

std::optional<QImage> MainWindow::grab() const {
    if (!m_window)
        return std::nullopt;
    const QImage content = m_window->grabWindow();
    if (content.isNull())
        return std::nullopt;
    const float grey = Appearance::shared().isDark() ? 0.12F : 0.97F;
    const QColor background = QColor::fromRgbF(grey, grey, grey);
    if (std::optional<QImage> whole = m_images.windowPicture(*m_window, content, background))
        return whole;
    QImage image(content.size(), QImage::Format_RGB32);
    image.fill(background);
    QPainter(&image).drawImage(image.rect(), content);
    return image;
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_window && event->type() == QEvent::Close) {
        remember();
        Q_EMIT closing();
    }
    return QObject::eventFilter(watched, event);
}

void MainWindow::make() {
    // The fonts are found while the types are still being read.
    static_cast<void>(Appearance::shared().textScale());
    m_engine->load(source);
    m_types.reset();
    if (m_engine->rootObjects().isEmpty())
        return;
    m_window = qobject_cast<QQuickWindow*>(m_engine->rootObjects().constFirst());
    if (!m_window)
        return;
    m_window->installEventFilter(this);
    Appearance::shared().follow(*m_window);
    connect(m_window, &QWindow::activeChanged, this, [this] {
        if (m_window->isActive())
            Q_EMIT becameKey();
    });
    place();
    m_desktop.prepareMainWindow(*m_window);
}

void MainWindow::remember() const {
    // A window that was opened for pictures says nothing about where its owner wants it.
    if (!m_model.isCapturing())
        WindowFrame::save(m_window->geometry(), m_model.paths());
}

void MainWindow::place() {
    const std::optional<QRect> remembered = WindowFrame::load(m_model.paths());
    const QScreen* screen = remembered ? QGuiApplication::screenAt(remembered->center()) : nullptr;
    if (screen != nullptr) {
        m_window->setGeometry(QRect(remembered->topLeft(), remembered->size().expandedTo(m_window->minimumSize())));
        return;
    }
    if (m_window->screen() != nullptr) {
        QRect frame(QPoint(), m_window->size());
        frame.moveCenter(m_window->screen()->availableGeometry().center());
        m_window->setGeometry(frame);
    }
}

} // namespace Kelvane
