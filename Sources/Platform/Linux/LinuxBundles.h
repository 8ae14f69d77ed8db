#pragma once

#include "DockCore/Ports/Bundles.h"
#include "Platform/Linux/FileStamp.h"

#include <QHash>
#include <QStringList>

#include <functional>
#include <mutex>

namespace Platform {

/// Application bundles as they lie on disk. The identifiers that were read are kept and read again only when the stamp
/// of their file differs; everything else is asked of the disk each time, so that every answer is current. Any thread
/// may call it, several at a time; no lock is held while the disk is read.
class LinuxBundles final : public DockCore::Bundles {
public:
    /// `searchFolders` gives the folders that `path` searches, `memory` the file that keeps what was remembered.
    LinuxBundles(std::function<QStringList()> searchFolders, std::function<QString()> memory);

    /// From "Contents/Info.plist" of a folder whose name ends in ".app".
    std::optional<QString> identifier(const QString& path) override;
    /// The file name.
    QString displayName(const QString& path) override;
    /// Searches the folders and the folders up to three levels below them, never inside a bundle; what lies nearer to
    /// the top comes first, and on one level the order of the folders counts, so that it agrees with the catalog's
    /// scan. What was remembered comes last.
    std::optional<QString> path(const QString& identifier) override;
    /// Keeps the path in a file; where that cannot be written it is forgotten.
    void remember(const QString& path) override;

private:
    struct Reading {
        FileStamp stamp;
        std::optional<QString> identifier;
    };

    QStringList remembered() const;

    const std::function<QStringList()> m_searchFolders;
    const std::function<QString()> m_memory;
    std::mutex m_lock;
    /// By the path of the bundle.
    QHash<QString, Reading> m_readings;
};

} // namespace Platform
