#pragma once

#include <QObject>
#include <QVariant>

class QDBusVariant;

namespace Platform {

/// The user's settings for appearance and text, from the desktop portal. Without a session bus or a portal they are
/// what they are where nobody asks for anything. Main thread only.
class PortalSettings final : public QObject {
    Q_OBJECT

public:
    PortalSettings();

    bool prefersDark() const { return m_prefersDark; }
    bool prefersReducedMotion() const { return m_prefersReducedMotion; }
    /// How much larger than usual text should be; 1 for the usual size.
    double textScale() const { return m_textScale; }

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void read(const QString& group, const QString& key);
    void take(const QString& group, const QString& key, const QVariant& value);

    bool m_prefersDark = false;
    bool m_prefersReducedMotion = false;
    double m_textScale = 1;
};

} // namespace Platform
