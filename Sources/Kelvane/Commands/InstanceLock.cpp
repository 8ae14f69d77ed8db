#include "Kelvane/Commands/InstanceLock.h"

#include <QDateTime>
#include <QFileInfo>

#include <cmath>

using namespace Qt::StringLiterals;

namespace Kelvane {

namespace {

/// Far more than passes between making the file and writing into it who made it.
constexpr qint64 millisecondsToSign = 2000;

} // namespace

InstanceLock::InstanceLock(const QString& supportFolder)
    : m_file(supportFolder + u"/lock"_s) {
    // However old, a lock counts while its process lives: the application holds it for weeks.
    m_file.setStaleLockTime(0);
}

InstanceLock::State InstanceLock::tryAcquire() {
    if (m_file.tryLock(0))
        return State::acquired;
    if (m_file.error() != QLockFile::LockFailedError)
        return State::unavailable;
    if (isAbandoned() && m_file.removeStaleLockFile() && m_file.tryLock(0))
        return State::acquired;
    return State::busy;
}

bool InstanceLock::isAbandoned() const {
    qint64 process = 0;
    QString host;
    QString name;
    if (m_file.getLockInfo(&process, &host, &name))
        return false;
    // A clock that was moved must not keep it for ever either.
    const qint64 age = QFileInfo(m_file.fileName()).lastModified().msecsTo(QDateTime::currentDateTime());
    return std::abs(age) > millisecondsToSign;
}

} // namespace Kelvane
