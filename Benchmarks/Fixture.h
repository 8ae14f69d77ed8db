#pragma once

#include "DockCore/AppInfo.h"
#include "DockCore/DockTile.h"
#include "DockCore/Profile.h"

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// A home with applications, a Dock and usage, made from nothing and the same at every run but for its dates. While one
/// lives, it is this process's home and Dock, and that of the programs it starts. Main thread only.
class Fixture {
public:
    /// Makes `applications` bundles, a Dock of the first `tiles` of them, and 91 days on which all were used.
    Fixture(int applications, int tiles);
    Fixture(const Fixture&) = delete;
    Fixture& operator=(const Fixture&) = delete;

    /// Gives every application a picture.
    void drawIcons() const;

    const QStringList& infoFiles() const { return m_infoFiles; }
    const QList<DockCore::DockTile>& tiles() const { return m_tiles; }
    QString usageFile() const { return path("Kelvane/usage.json"); }
    QString otherUsageFile() const { return path("usage copy.json"); }
    QDateTime now() const { return m_now; }
    /// Pins five applications and fills nineteen places by use.
    DockCore::Profile profile() const;
    /// The same with the pinned ones in the opposite order.
    DockCore::Profile turnedProfile() const;
    /// The application metadata of the bundles could be written: the file system keeps extended attributes.
    bool hasMetadata() const { return m_hasMetadata; }

private:
    QString path(const char* below) const;
    static QString identifier(int number);
    void makeBundle(int number);
    void makeSupport() const;
    void makeUsage(int applications) const;

    QTemporaryDir m_directory;
    QDateTime m_now = QDateTime::currentDateTimeUtc();
    QStringList m_infoFiles;
    QList<DockCore::AppInfo> m_applications;
    QList<DockCore::DockTile> m_tiles;
    bool m_hasMetadata = true;
};
