#pragma once

#include "DockCore/Ports/Preferences.h"

#include <QByteArray>
#include <QMap>

#include <mutex>

namespace Platform {

/// The Dock's preferences as one property-list file, which other programs may change at any time. A file that is there
/// but is no property list is never written over. Any thread may call it.
class LinuxPreferences final : public DockCore::Preferences {
public:
    explicit LinuxPreferences(const QString& path = defaultPath());

    /// Writes what was set into the file, whole or not at all, keys that were not set left as they are and in the
    /// format that the file has (a new one is binary and the user's alone), and reads the file again. Values that could
    /// not be saved are forgotten, so that a refused change cannot turn up later.
    bool synchronize() override;
    std::optional<DockCore::PropertyList> copyValue(const QString& key) override;
    void setValue(const QString& key, const std::optional<DockCore::PropertyList>& value) override;

    /// "com.apple.dock.plist" in the user's configuration folder.
    static QString defaultPath();

private:
    enum class File { missing, unreadable, read };
    void load();
    bool save(const DockCore::PropertyList::Dictionary& values);

    const QString m_path;
    std::mutex m_lock;
    QMap<QString, std::optional<DockCore::PropertyList>> m_pending;
    /// The file as last read: its bytes, so that equal ones need no second parsing, and what they say.
    File m_file = File::missing;
    QByteArray m_bytes;
    DockCore::PropertyList::Dictionary m_values;
};

} // namespace Platform
