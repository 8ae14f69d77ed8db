#pragma once

#include "DockCore/Ports/Bundles.h"
#include "Platform/Linux/FileStamp.h"

#include <QHash>
#include <QStringList>

#include <functional>
#include <memory>
#include <mutex>

namespace Platform {

/// Application bundles as they lie on disk. What was read is kept and read again only when the disk says that it
/// changed, which takes a few calls of `stat`, so that what is installed or removed later is noticed at the next
/// question. A bundle that changes its identifier in place is noticed when it is asked for under either its path or its
/// old identifier. Any thread may call it, several at a time; no lock is held while the disk is read.
class LinuxBundles final : public DockCore::Bundles {
public:
    /// `searchFolders` gives the folders that `path` searches; by default those of the catalog. `memory` names the file
    /// that keeps what was remembered; by default one in the support folder.
    explicit LinuxBundles(std::function<QStringList()> searchFolders = catalogFolders,
                          std::function<QString()> memory = memoryFile);
    ~LinuxBundles() override;

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
    struct Index;

    static QStringList catalogFolders();
    static QString memoryFile();
    QStringList remembered() const;
    std::shared_ptr<const Index> currentIndex();
    bool isCurrent(const Index& index);
    std::shared_ptr<const Index> build(const Index* previous);
    quint64 version();

    const std::function<QStringList()> m_searchFolders;
    const std::function<QString()> m_memory;
    std::mutex m_lock;
    /// By the path of the bundle.
    QHash<QString, Reading> m_readings;
    /// Counts the bundles that were found to have another identifier than before, and those that were remembered.
    quint64 m_version = 0;
    std::shared_ptr<const Index> m_index;
};

} // namespace Platform
