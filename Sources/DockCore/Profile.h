#pragma once

#include "DockCore/Storage/JSONForm.h"
#include "DockCore/UsageWindow.h"

#include <QString>
#include <QStringList>
#include <QUuid>

#include <optional>

namespace DockCore {

/// One named way of laying out the Dock. Nothing is enforced: lists may overlap, repeat and name what is not installed.
/// A plain value.
struct Profile {
    QUuid id;
    QString name;
    QString symbol;
    /// Bundle identifiers that always come first, in this order.
    QStringList pinned;
    /// Bundle identifiers that are never placed; they win over `pinned`.
    QStringList excluded;
    /// Places filled by usage after the pinned ones.
    qint64 adaptiveSlots = 0;
    UsageWindow window = UsageWindow::week;
    /// A small spacer between the two groups.
    bool separatePinned = false;

    bool operator==(const Profile&) const = default;

    /// A profile with a fresh identifier.
    static Profile make(const QString& name, const QString& symbol, const QStringList& pinned,
                        const QStringList& excluded, qint64 adaptiveSlots, UsageWindow window, bool separatePinned);
    /// The symbols that the editor offers.
    static const QStringList& symbols();

    QJsonValue toJson() const;
    /// Every key is required and of its type; extra keys are ignored.
    static std::optional<Profile> fromJson(const QJsonValue& json);
};

size_t qHash(const Profile& profile, size_t seed = 0);
/// The identifier as files and people see it: upper-case, without braces.
QString uuidString(const QUuid& id);
std::optional<QUuid> uuidFromString(const QString& text);

template <>
struct JSONForm<QUuid> {
    static QJsonValue write(const QUuid& id);
    static std::optional<QUuid> read(const QJsonValue& json);
};

} // namespace DockCore
