#include "DockCore/Storage/Paths.h"

#include "DockCore/Ports/Folders.h"

#include <QDir>
#include <QFileInfo>

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

QString resolved(Folders& folders) {
    // Set but empty is a relative path like any other.
    if (qEnvironmentVariableIsSet("KELVANE_HOME")) {
        const QString home = qEnvironmentVariable("KELVANE_HOME");
        return withoutTrailingSlashes(QDir::isAbsolutePath(home) ? home : joined(QDir::currentPath(), home));
    }
    const QString applicationSupport = folders.applicationSupport();
    if (applicationSupport.isEmpty())
        qFatal("There is no folder for application data.");
    return joined(applicationSupport, u"Kelvane"_s);
}
} // namespace

Paths::Paths(Folders& folders)
    : m_support(resolved(folders)) {
    make(m_support);
}

QString Paths::usage() const {
    return joined(m_support, u"usage.json"_s);
}

QString Paths::profiles() const {
    return joined(m_support, u"profiles.json"_s);
}

QString Paths::settings() const {
    return joined(m_support, u"settings.json"_s);
}

QString Paths::snapshots() const {
    const QString snapshots = joined(m_support, u"Snapshots"_s);
    if (!QFileInfo::exists(snapshots)) {
        make(m_support);
        make(snapshots);
    }
    return snapshots;
}

} // namespace DockCore
