#pragma once

#include <QString>

#include <optional>

namespace DockCore {

/// A location as the Dock writes it. It keeps its absolute string as written, apart from characters that a URL may not
/// hold, which it encodes; nothing that is already encoded is touched. A plain value.
struct URL {
    QString absoluteString;

    bool operator==(const URL&) const = default;

    /// The URL in `text`; nothing when it is empty or does not parse.
    static std::optional<URL> parse(const QString& text);
    /// The file URL of the folder at the absolute `path`, ending with a slash.
    static URL folder(const QString& path);

    /// The decoded path, without a trailing slash unless it is the root; empty when there is none.
    QString path() const;
    /// The last component of the decoded path; a trailing slash does not hide it.
    QString lastPathComponent() const;
    /// What follows the last dot of the last component, without the dot; empty for a name that starts with its only
    /// dot.
    QString pathExtension() const;
};

} // namespace DockCore
