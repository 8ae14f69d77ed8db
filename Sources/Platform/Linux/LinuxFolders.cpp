#include "Platform/Linux/LinuxFolders.h"

#include <QDir>
#include <QFile>

#include <dirent.h>
#include <memory>
#include <pwd.h>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace Platform {

namespace {

/// The variable's value when it is an absolute path: the XDG rules have every other value ignored.
QString absolutePath(const char* variable) {
    const QString path = QFile::decodeName(qgetenv(variable));
    return path.startsWith(u'/') ? QDir::cleanPath(path) : QString();
}

QString homeInUserDatabase() {
    std::vector<char> buffer(16384);
    passwd entry = {};
    passwd* found = nullptr;
    if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || found == nullptr)
        return {};
    return QFile::decodeName(found->pw_dir);
}

QString homeFolder() {
    const QString home = absolutePath("HOME");
    return home.isEmpty() ? homeInUserDatabase() : home;
}

QString baseFolder(const char* variable, const QString& belowHome) {
    const QString folder = absolutePath(variable);
    if (!folder.isEmpty())
        return folder;
    const QString home = homeFolder();
    return home.isEmpty() ? QString() : QDir::cleanPath(home + u'/' + belowHome);
}

} // namespace

QString LinuxFolders::home() {
    const QString home = homeFolder();
    return home.isEmpty() ? u"/"_s : home;
}

QString LinuxFolders::applicationSupport() {
    return baseFolder("XDG_DATA_HOME", u".local/share"_s);
}

QString LinuxFolders::configuration() {
    return baseFolder("XDG_CONFIG_HOME", u".config"_s);
}

QStringList LinuxFolders::entries(const QString& folder) {
    struct Close {
        void operator()(DIR* directory) const { closedir(directory); }
    };
    const std::unique_ptr<DIR, Close> directory(opendir(QFile::encodeName(folder).constData()));
    if (!directory)
        return {};
    const QString prefix = folder.endsWith(u'/') ? folder : folder + u'/';
    QStringList paths;
    while (const dirent* entry = readdir(directory.get())) {
        const char* name = static_cast<const char*>(entry->d_name);
        if (*name != '.')
            paths.append(prefix + QFile::decodeName(name));
    }
    return paths;
}

} // namespace Platform
