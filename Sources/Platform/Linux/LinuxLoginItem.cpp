#include "Platform/Linux/LinuxLoginItem.h"

#include "DockCore/Error.h"
#include "DockCore/Storage/AtomicFile.h"
#include "DockCore/Storage/BoundedFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace Platform {

namespace {

/// Upper bound for reading an autostart entry.
constexpr qint64 largestEntry = 65536;

/// A path as the "Exec" key takes it: in quotes, with what is special inside them escaped, percent signs doubled.
QString quoted(const QString& path) {
    QString result;
    for (const QChar character : path) {
        if (u"\"`$\\"_s.contains(character))
            result += u"\\\\"_s;
        result += character;
        if (character == u'%')
            result += character;
    }
    return u"\"%1\""_s.arg(result);
}

bool says(const QString& content, QStringView line) {
    for (const QStringView candidate : QStringView(content).split(u'\n')) {
        if (candidate.trimmed().compare(line, Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

} // namespace

QString LinuxLoginItem::path() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           u"/autostart/org.kelvane.Kelvane.desktop"_s;
}

bool LinuxLoginItem::isEnabled() {
    const DockCore::BoundedFile entry = DockCore::BoundedFile::read(path(), largestEntry);
    // A settings tool turns an entry off by a word in it rather than by deleting it.
    const QString content = QString::fromUtf8(entry.bytes);
    return entry.state == DockCore::BoundedFile::State::read && !says(content, u"Hidden=true") &&
           !says(content, u"X-GNOME-Autostart-enabled=false");
}

std::optional<QString> LinuxLoginItem::setEnabled(bool enabled) {
    const QString entry = path();
    if (!enabled) {
        QFile file(entry);
        return !file.exists() || file.remove() ? std::nullopt : std::optional(file.errorString());
    }
    QDir().mkpath(QFileInfo(entry).path());
    const QString content = u"[Desktop Entry]\n"
                            "Type=Application\n"
                            "Name=Kelvane\n"
                            "Comment=Keeps the Dock in step with how you work\n"
                            "Icon=org.kelvane.Kelvane\n"
                            "Exec=%1\n"
                            "Terminal=false\n"_s.arg(quoted(QCoreApplication::applicationFilePath()));
    try {
        DockCore::AtomicFile::save(content.toUtf8(), entry, DockCore::AtomicFile::Access::asBefore);
    } catch (const DockCore::Error& error) {
        return error.description();
    }
    return std::nullopt;
}

} // namespace Platform
