#include "Platform/Linux/PortalSettings.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVariant>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Platform {

namespace {

const QString service = u"org.freedesktop.portal.Desktop"_s;
const QString path = u"/org/freedesktop/portal/desktop"_s;
const QString interface = u"org.freedesktop.portal.Settings"_s;
const QString appearance = u"org.freedesktop.appearance"_s;
const QString gnome = u"org.gnome.desktop.interface"_s;
/// A desktop that does not answer by then is one without these settings.
constexpr int patience = 200;
constexpr uint dark = 1;
constexpr double largestText = 3;

/// The value inside; the portal wraps it twice.
QVariant unwrapped(QVariant value) {
    while (value.canConvert<QDBusVariant>() && value.typeId() == qMetaTypeId<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

PortalSettings::PortalSettings() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(service, path, interface, u"SettingChanged"_s, this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
    read(appearance, u"color-scheme"_s);
    read(gnome, u"text-scaling-factor"_s);
    read(gnome, u"enable-animations"_s);
}

void PortalSettings::settingChanged(const QString& group, const QString& key, const QDBusVariant& value) {
    take(group, key, unwrapped(value.variant()));
    Q_EMIT changed();
}

void PortalSettings::read(const QString& group, const QString& key) {
    QDBusMessage question = QDBusMessage::createMethodCall(service, path, interface, u"Read"_s);
    question.setAutoStartService(false);
    question.setArguments({group, key});
    const QDBusMessage answer = QDBusConnection::sessionBus().call(question, QDBus::Block, patience);
    if (answer.type() == QDBusMessage::ReplyMessage && !answer.arguments().isEmpty())
        take(group, key, unwrapped(answer.arguments().constFirst()));
}

void PortalSettings::take(const QString& group, const QString& key, const QVariant& value) {
    if (group == appearance && key == u"color-scheme"_s)
        m_prefersDark = value.toUInt() == dark;
    else if (group == gnome && key == u"text-scaling-factor"_s)
        m_textScale = std::clamp(value.toDouble(), 1.0, largestText);
    else if (group == gnome && key == u"enable-animations"_s)
        m_prefersReducedMotion = !value.toBool();
}

} // namespace Platform
