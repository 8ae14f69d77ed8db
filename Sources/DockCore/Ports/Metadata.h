#pragma once

#include <QDateTime>
#include <QList>
#include <QString>

#include <optional>

namespace DockCore {

/// The operating system's own record of when a file was opened. Any thread may call it, several at a time.
class Metadata {
public:
    virtual ~Metadata() = default;

    /// What the record holds of one file. A member is absent when it is missing or not of the expected type.
    struct Item {
        std::optional<QList<QDateTime>> usedDates;
        std::optional<QDateTime> lastUsedDate;
        bool operator==(const Item&) const = default;
    };

    /// The record of the file at `path`; nothing when the file is unknown to it.
    virtual std::optional<Item> item(const QString& path) = 0;
};

} // namespace DockCore
