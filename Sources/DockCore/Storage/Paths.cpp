#include "DockCore/Storage/Paths.h"

#include "DockCore/Ports/Folders.h"
#include "DockCore/Services.h"

#include <QDir>
#include <QFileInfo>

#include <mutex>

using namespace Qt::StringLiterals;

namespace DockCore {

namespace {
QString joined(const QString& folder, const QString& name) {
    return folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

QString withoutTrailingSlashes(QString path) {
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    return path;
}

/// Makes the folder for the user alone, and the ones above it as usual. Failure shows in the first write into it.
void make(const QString& folder) {
    if (QFileInfo::exists(folder))
        return;
    QDir().mkpath(QFileInfo(folder).path());
    QDir().mkdir(folder, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}

QString resolved() {
    // Set but empty is a relative path like any other.
    if (qEnvironmentVariableIsSet("KELVANE_HOME")) {
        const QString home = qEnvironmentVariable("KELVANE_HOME");
        return withoutTrailingSlashes(QDir::isAbsolutePath(home) ? home : joined(QDir::currentPath(), home));
    }
    const QString applicationSupport = Services::current().folders.applicationSupport();
    if (applicationSupport.isEmpty())
        qFatal("There is no folder for application data.");
    return joined(applicationSupport, u"Kelvane"_s);
}
} // namespace

QString Paths::support() {
    static std::mutex lock;
    static QString folder;
    static quint64 generation = 0;

    const std::lock_guard guard(lock);
    if (folder.isEmpty() || generation != Services::generation()) {
        generation = Services::generation();
        folder = resolved();
        make(folder);
    }
    return folder;
}

QString Paths::usage() {
    return joined(support(), u"usage.json"_s);
}

QString Paths::profiles() {
    return joined(support(), u"profiles.json"_s);
}

QString Paths::settings() {
    return joined(support(), u"settings.json"_s);
}

QString Paths::snapshots() {
    const QString folder = support();
    const QString snapshots = joined(folder, u"Snapshots"_s);
    if (!QFileInfo::exists(snapshots)) {
        make(folder);
        make(snapshots);
    }
    return snapshots;
}

} // namespace DockCore
