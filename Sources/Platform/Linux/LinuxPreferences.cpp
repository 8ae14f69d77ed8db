#include "Platform/Linux/LinuxPreferences.h"

#include "DockCore/Error.h"
#include "DockCore/Storage/AtomicFile.h"
#include "DockCore/Storage/BoundedFile.h"
#include "Platform/Linux/LinuxFolders.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;
using DockCore::BoundedFile;
using DockCore::PropertyList;

namespace Platform {

namespace {

constexpr qint64 largestFile = 256LL * 1024 * 1024;

/// Makes the folder and those above it that are missing, for the user alone as the XDG rules ask.
bool makeFolder(const QString& path) {
    if (QFileInfo(path).isDir())
        return true;
    const QString parent = QFileInfo(path).path();
    return parent != path && makeFolder(parent) &&
           QDir().mkdir(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}

} // namespace

LinuxPreferences::LinuxPreferences(const QString& path)
    : m_path(path) {}

QString LinuxPreferences::defaultPath() {
    return LinuxFolders::configuration() + u"/com.apple.dock.plist"_s;
}

bool LinuxPreferences::synchronize() {
    const std::lock_guard guard(m_lock);
    load();
    if (m_pending.isEmpty())
        return true;
    const auto pending = std::exchange(m_pending, {});
    if (m_file == File::unreadable)
        return false;
    PropertyList::Dictionary values = m_values;
    for (auto change = pending.begin(); change != pending.end(); ++change) {
        if (change.value())
            values.insert(change.key(), *change.value());
        else
            values.remove(change.key());
    }
    if (values == m_values)
        return true;
    const bool isSaved = save(values);
    // What was saved is read back: a format need not keep every value exactly.
    load();
    return isSaved;
}

std::optional<PropertyList> LinuxPreferences::copyValue(const QString& key) {
    const std::lock_guard guard(m_lock);
    if (const auto pending = m_pending.constFind(key); pending != m_pending.cend())
        return *pending;
    const auto value = m_values.constFind(key);
    return value == m_values.cend() ? std::nullopt : std::optional(*value);
}

void LinuxPreferences::setValue(const QString& key, const std::optional<PropertyList>& value) {
    const std::lock_guard guard(m_lock);
    m_pending.insert(key, value);
}

void LinuxPreferences::load() {
    // The bytes are compared rather than the file's times: a Dock that puts its list back at once may leave equal
    // times.
    const BoundedFile content = BoundedFile::read(m_path, largestFile);
    if (content.state == BoundedFile::State::read && m_file == File::read && content.bytes == m_bytes)
        return;
    m_bytes.clear();
    m_values.clear();
    if (content.state != BoundedFile::State::read) {
        m_file = content.state == BoundedFile::State::missing ? File::missing : File::unreadable;
        return;
    }
    m_file = File::unreadable;
    const std::optional<PropertyList> list = PropertyList::parse(content.bytes);
    if (list && list->dictionary() != nullptr) {
        m_file = File::read;
        m_bytes = content.bytes;
        m_values = *list->dictionary();
    }
}

bool LinuxPreferences::save(const PropertyList::Dictionary& values) {
    const PropertyList::Format format =
        m_file == File::missing ? PropertyList::Format::binary : PropertyList::format(m_bytes);
    const QByteArray bytes = PropertyList{values}.serialize(format);
    if (bytes.isEmpty() || !makeFolder(QFileInfo(m_path).path()))
        return false;
    try {
        DockCore::AtomicFile::save(bytes, m_path, DockCore::AtomicFile::Access::asBefore);
    } catch (const DockCore::FileError&) {
        // The caller knows it as a refusal; what the user reads is the caller's to say.
        return false;
    }
    return true;
}

} // namespace Platform
