#include "Platform/Linux/LinuxDesktop.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#include <QFileInfo>
#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <QUrl>

#include <cmath>

using namespace Qt::StringLiterals;

namespace Platform {

namespace {

constexpr int bodyPixels = 13;

/// What Qt's own dialogs and menus are drawn with; the window has colours of its own and asks only which of the two.
QPalette palette(bool dark) {
    const QColor window = dark ? QColor(0x26, 0x26, 0x2B) : QColor(0xF8, 0xF8, 0xFA);
    const QColor base = dark ? QColor(0x1B, 0x1B, 0x1F) : QColor(0xFF, 0xFF, 0xFF);
    const QColor text = dark ? QColor(0xF1, 0xF1, 0xF4) : QColor(0x1C, 0x1C, 0x21);
    const QColor accent = dark ? QColor(0x50, 0x68, 0xE4) : QColor(0x3F, 0x57, 0xD6);
    QPalette result(window, window);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        result.setColor(role, text);
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        result.setColor(QPalette::Disabled, role, dark ? QColor(0x62, 0x62, 0x6C) : QColor(0xA9, 0xA9, 0xB3));
    result.setColor(QPalette::Base, base);
    result.setColor(QPalette::Highlight, accent);
    result.setColor(QPalette::HighlightedText, Qt::white);
    return result;
}

} // namespace

LinuxDesktop::LinuxDesktop() {
    QObject::connect(&m_settings, &PortalSettings::changed, qGuiApp, [this] { follow(); });
    follow();
}

void LinuxDesktop::setActivationPolicy(ActivationPolicy) {}

void LinuxDesktop::setAppearance(Appearance appearance) {
    m_appearance = appearance;
    follow();
}

void LinuxDesktop::prepareMainWindow(QWindow&) {}

bool LinuxDesktop::showAboutPanel() {
    return false;
}

void LinuxDesktop::reveal(const QString& path) {
    const QFileInfo file(path);
    // The file may not be there yet; its folder is.
    const QUrl folder = QUrl::fromLocalFile(file.absolutePath());
    if (!file.exists()) {
        QDesktopServices::openUrl(folder);
        return;
    }
    QDBusMessage question =
        QDBusMessage::createMethodCall(u"org.freedesktop.FileManager1"_s, u"/org/freedesktop/FileManager1"_s,
                                       u"org.freedesktop.FileManager1"_s, u"ShowItems"_s);
    question.setArguments(
        {QStringList{QUrl::fromLocalFile(file.absoluteFilePath()).toString(QUrl::FullyEncoded)}, QString()});
    auto* watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), qGuiApp);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher, [watcher, folder] {
        if (watcher->isError())
            QDesktopServices::openUrl(folder);
        watcher->deleteLater();
    });
}

void LinuxDesktop::follow() {
    const bool dark =
        m_appearance == Appearance::dark || (m_appearance == Appearance::system && m_settings.prefersDark());
    QGuiApplication::setPalette(palette(dark));
    QFont font(u"Inter"_s);
    font.setPixelSize(static_cast<int>(std::lround(bodyPixels * m_settings.textScale())));
    QGuiApplication::setFont(font);
    qGuiApp->setProperty("reducedMotion", m_settings.prefersReducedMotion());
}

} // namespace Platform
