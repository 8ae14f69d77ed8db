#include "Platform/Linux/LinuxBundles.h"

#include "DockCore/AppInfo.h"
#include "DockCore/Error.h"
#include "DockCore/Storage/BoundedFile.h"
#include "DockCore/Storage/JSONFile.h"
#include "DockCore/Storage/JSONForm.h"
#include "DockCore/Storage/PropertyList.h"
#include "Platform/Linux/LinuxFolders.h"

#include <QJsonArray>
#include <QSet>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using DockCore::BoundedFile;
using DockCore::PropertyList;

namespace Platform {

namespace {

constexpr qint64 largestInfo = 16LL * 1024 * 1024;
constexpr int deepestLevel = 3;

QString withoutTrailingSlashes(const QString& path) {
    qsizetype length = path.size();
    while (length > 1 && path.at(length - 1) == u'/')
        --length;
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

LinuxBundles::LinuxBundles(std::function<QStringList()> searchFolders, std::function<QString()> memory)
    : m_searchFolders(std::move(searchFolders))
    , m_memory(std::move(memory)) {}

QStringList LinuxBundles::remembered() const {
    const std::optional<QJsonValue> kept = DockCore::JSONFile::read(m_memory());
    return kept ? DockCore::JSONForm<QStringList>::read(*kept).value_or(QStringList()) : QStringList();
}

void LinuxBundles::remember(const QString& path) {
    const QString bundle = withoutTrailingSlashes(path);
    const std::optional<QString> identifier = this->identifier(bundle);
    if (!identifier || this->path(*identifier))
        return;
    QStringList bundles = remembered();
    bundles.append(bundle);
    try {
        DockCore::JSONFile::save(QJsonArray::fromStringList(bundles), m_memory());
    } catch (const DockCore::Error&) {
        // The header says what happens then.
    }
}

std::optional<QString> LinuxBundles::identifier(const QString& path) {
    const QString bundle = withoutTrailingSlashes(path);
    if (!DockCore::isApplicationPath(bundle))
        return std::nullopt;
    const QString file = infoFile(bundle);
    std::optional<Reading> known;
    {
        const std::lock_guard guard(m_lock);
        const auto reading = m_readings.constFind(bundle);
        if (reading != m_readings.cend())
            known = *reading;
    }
    // Taken before the content is read: a file that changes in between then leaves a stamp that is out of date.
    const std::optional<FileStamp> stamp = FileStamp::of(file);
    if (known && stamp && stamp->isUnchangedSince(known->stamp))
        return known->identifier;
    const BoundedFile content = BoundedFile::read(file, largestInfo);
    const bool isRead = stamp && content.state == BoundedFile::State::read;
    const std::optional<QString> identifier = isRead ? identifierIn(content.bytes) : std::nullopt;
    const std::lock_guard guard(m_lock);
    if (isRead)
        m_readings.insert(bundle, {.stamp = *stamp, .identifier = identifier});
    else
        m_readings.remove(bundle);
    return identifier;
}

QString LinuxBundles::displayName(const QString& path) {
    const QString file = withoutTrailingSlashes(path);
    return file.sliced(file.lastIndexOf(u'/') + 1);
}

std::optional<QString> LinuxBundles::path(const QString& identifier) {
    if (identifier.isEmpty())
        return std::nullopt;
    // By device and inode: a folder that is reached twice, perhaps through a link to one above it, is searched once.
    QSet<std::pair<quint64, quint64>> visited;
    QStringList level = m_searchFolders();
    for (int depth = 0; depth <= deepestLevel; ++depth) {
        QStringList below;
        for (const QString& folder : std::as_const(level)) {
            const std::optional<FileStamp> stamp = FileStamp::of(folder);
            if (!stamp || !stamp->isFolder || visited.contains({stamp->device, stamp->inode}))
                continue;
            const bool isBundle = depth > 0 && FileStamp::of(infoFile(folder));
            if (isBundle)
                continue;
            visited.insert({stamp->device, stamp->inode});
            for (const QString& entry : LinuxFolders().entries(folder)) {
                if (!DockCore::isApplicationPath(entry))
                    below.append(entry);
                else if (this->identifier(entry) == identifier)
                    return entry;
            }
        }
        level = below;
    }
    const QStringList shown = remembered();
    const auto found =
        std::ranges::find_if(shown, [&](const QString& bundle) { return this->identifier(bundle) == identifier; });
    return found == shown.end() ? std::nullopt : std::optional(*found);
}

} // namespace Platform
