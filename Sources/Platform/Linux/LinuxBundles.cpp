#include "Platform/Linux/LinuxBundles.h"

#include "DockCore/AppInfo.h"
#include "DockCore/Error.h"
#include "DockCore/Storage/JSONFile.h"
#include "DockCore/Storage/PropertyList.h"
#include "Platform/Linux/LinuxFolders.h"

#include <QJsonArray>
#include <QSet>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using DockCore::PropertyList;

namespace Platform {

namespace {

constexpr qint64 largestInfo = 16LL * 1024 * 1024;
constexpr int deepestLevel = 3;

enum class Below { search, leave };

QString withoutTrailingSlashes(const QString& path) {
    qsizetype length = path.size();
    while (length > 1 && path.at(length - 1) == u'/') {
        --length;
    }
    return path.first(length);
}

QString infoFile(const QString& bundle) {
    return bundle + u"/Contents/Info.plist"_s;
}

std::optional<QString> identifierIn(const QByteArray& info) {
    const std::optional<QString> identifier = PropertyList::string(info, u"CFBundleIdentifier"_s);
    return identifier && !identifier->isEmpty() ? identifier : std::nullopt;
}

} // namespace

/// What lies in the search folders, and the state of every folder that was looked at to know it.
struct LinuxBundles::Index {
    struct Folder {
        /// Absent when there is nothing at its path.
        std::optional<FileStamp> stamp;
        bool isListed = false;
        QStringList applications;
        QStringList folders;

        void list(const QString& path, Below below);
    };
    QStringList roots;
    quint64 version = 0;
    QHash<QString, Folder> folders;
    QHash<QString, QString> identifiers;
    QHash<QString, QString> paths;
    /// Perhaps still being copied to their place, which does not change the folder that they lie in.
    QStringList unidentified;

    void add(const QString& bundle, const std::optional<QString>& identifier);
};

void LinuxBundles::Index::Folder::list(const QString& path, Below below) {
    isListed = true;
    const QStringList entries = LinuxFolders().entries(path);
    for (const QString& entry : entries) {
        if (DockCore::isApplicationPath(entry)) {
            applications.append(entry);
        } else if (below == Below::search) {
            const std::optional<FileStamp> child = FileStamp::of(entry);
            const bool isBundle = child && child->isFolder && FileStamp::of(infoFile(entry));
            if (child && child->isFolder && !isBundle) {
                folders.append(entry);
            }
        }
    }
}

void LinuxBundles::Index::add(const QString& bundle, const std::optional<QString>& identifier) {
    if (!identifier) {
        unidentified.append(bundle);
        return;
    }
    identifiers.insert(bundle, *identifier);
    if (!paths.contains(*identifier)) {
        paths.insert(*identifier, bundle);
    }
}

LinuxBundles::LinuxBundles(std::function<QStringList()> searchFolders, std::function<QString()> memory)
    : m_searchFolders(std::move(searchFolders))
    , m_memory(std::move(memory)) {}

LinuxBundles::~LinuxBundles() = default;

QStringList LinuxBundles::remembered() const {
    const std::optional<QJsonValue> kept = DockCore::JSONFile::read(m_memory());
    return kept ? DockCore::JSONFile::strings(*kept).value_or(QStringList()) : QStringList();
}

void LinuxBundles::remember(const QString& path) {
    const QString bundle = withoutTrailingSlashes(path);
    const std::optional<QString> identifier = this->identifier(bundle);
    if (!identifier || this->path(*identifier)) {
        return;
    }
    QStringList bundles = remembered();
    bundles.append(bundle);
    try {
        DockCore::JSONFile::save(QJsonArray::fromStringList(bundles), m_memory());
    } catch (const DockCore::Error&) {
        return;
    }
    const std::lock_guard guard(m_lock);
    ++m_version;
}

std::optional<QString> LinuxBundles::identifier(const QString& path) {
    const QString bundle = withoutTrailingSlashes(path);
    if (!DockCore::isApplicationPath(bundle)) {
        return std::nullopt;
    }
    const QString file = infoFile(bundle);
    std::optional<Reading> known;
    {
        const std::lock_guard guard(m_lock);
        const auto reading = m_readings.constFind(bundle);
        if (reading != m_readings.cend()) {
            known = *reading;
        }
    }
    if (known) {
        const std::optional<FileStamp> stamp = FileStamp::of(file);
        if (stamp && stamp->isUnchangedSince(known->stamp)) {
            return known->identifier;
        }
    }
    const FileContent content = FileContent::of(file, largestInfo);
    const bool isRead = content.state == FileContent::State::read;
    const std::optional<QString> identifier = isRead ? identifierIn(content.bytes) : std::nullopt;
    const std::lock_guard guard(m_lock);
    if (isRead) {
        m_readings.insert(bundle, {.stamp = content.stamp, .identifier = identifier});
    } else {
        m_readings.remove(bundle);
    }
    if (known && known->identifier != identifier) {
        ++m_version;
    }
    return identifier;
}

QString LinuxBundles::displayName(const QString& path) {
    const QString file = withoutTrailingSlashes(path);
    return file.sliced(file.lastIndexOf(u'/') + 1);
}

std::optional<QString> LinuxBundles::path(const QString& identifier) {
    if (identifier.isEmpty()) {
        return std::nullopt;
    }
    // A bundle that turns out to be another one makes the index old; the second one has then just been built.
    for (int attempt = 0; attempt < 2; ++attempt) {
        const std::shared_ptr<const Index> index = currentIndex();
        const auto path = index->paths.constFind(identifier);
        if (path == index->paths.cend()) {
            return std::nullopt;
        }
        if (this->identifier(*path) == identifier) {
            return *path;
        }
    }
    return std::nullopt;
}

std::shared_ptr<const LinuxBundles::Index> LinuxBundles::currentIndex() {
    std::shared_ptr<const Index> index;
    {
        const std::lock_guard guard(m_lock);
        index = m_index;
    }
    if (index && isCurrent(*index)) {
        return index;
    }
    index = build(index.get());
    const std::lock_guard guard(m_lock);
    m_index = index;
    return index;
}

quint64 LinuxBundles::version() {
    const std::lock_guard guard(m_lock);
    return m_version;
}

bool LinuxBundles::isCurrent(const Index& index) {
    if (index.version != version() || index.roots != m_searchFolders()) {
        return false;
    }
    for (auto folder = index.folders.cbegin(); folder != index.folders.cend(); ++folder) {
        const std::optional<FileStamp> stamp = FileStamp::of(folder.key());
        if (stamp.has_value() != folder->stamp.has_value() || (stamp && !stamp->isUnchangedSince(*folder->stamp))) {
            return false;
        }
    }
    return std::ranges::none_of(index.unidentified,
                                [this](const QString& bundle) { return identifier(bundle).has_value(); });
}

std::shared_ptr<const LinuxBundles::Index> LinuxBundles::build(const Index* previous) {
    auto index = std::make_shared<Index>();
    index->version = version();
    index->roots = m_searchFolders();
    const bool keepsIdentifiers = previous != nullptr && previous->version == index->version;
    // By device and inode: a folder that is reached twice, perhaps through a link to one above it, is searched once.
    QSet<std::pair<quint64, quint64>> visited;
    QStringList level = index->roots;
    for (int depth = 0; depth <= deepestLevel; ++depth) {
        QStringList below;
        for (const QString& path : std::as_const(level)) {
            Index::Folder folder;
            folder.stamp = FileStamp::of(path);
            const std::pair<quint64, quint64> place =
                folder.stamp ? std::pair(folder.stamp->device, folder.stamp->inode) : std::pair<quint64, quint64>();
            bool isUnchanged = false;
            if (folder.stamp && folder.stamp->isFolder && !visited.contains(place)) {
                visited.insert(place);
                const Index::Folder before = previous == nullptr ? Index::Folder() : previous->folders.value(path);
                isUnchanged = before.isListed && folder.stamp->isUnchangedSince(*before.stamp);
                if (isUnchanged) {
                    folder = before;
                } else {
                    folder.list(path, depth < deepestLevel ? Below::search : Below::leave);
                }
            }
            for (const QString& bundle : std::as_const(folder.applications)) {
                const bool isKnown = isUnchanged && keepsIdentifiers && previous->identifiers.contains(bundle);
                index->add(bundle, isKnown ? previous->identifiers.value(bundle) : identifier(bundle));
            }
            below += folder.folders;
            index->folders.insert(path, folder);
        }
        level = below;
    }
    const QStringList bundles = remembered();
    for (const QString& bundle : bundles) {
        index->add(bundle, identifier(bundle));
    }
    return index;
}

} // namespace Platform
