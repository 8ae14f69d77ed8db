#include "Fixture.h"

#include "DockCore/Settings.h"
#include "DockCore/Storage/JSONFile.h"
#include "DockCore/Storage/PropertyList.h"
#include "DockCore/UsageStore.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <sys/xattr.h>

using namespace DockCore;
using namespace Qt::StringLiterals;

namespace {

constexpr int storedDays = 91;
constexpr int openedDays = 30;

void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("%s could not be written", qPrintable(path));
    }
}

/// As large and as varied as those of real applications.
PropertyList info(const QString& identifier, const QString& name) {
    PropertyList::Dictionary values = {
        {u"CFBundleIdentifier"_s, {identifier}},
        {u"CFBundleName"_s, {name}},
        {u"CFBundleExecutable"_s, {name}},
        {u"CFBundleIconFile"_s, {u"Application"_s}},
        {u"CFBundleVersion"_s, {u"1207.3"_s}},
        {u"LSRequiresNativeExecution"_s, {true}},
        {u"NSHumanReadableCopyright"_s, {u"Copyright © 2026 Example. All rights reserved."_s}}};
    for (int number = 0; number < 30; ++number) {
        values.insert(u"NSUsageDescription%1"_s.arg(number),
                      {u"%1 would like to use number %2."_s.arg(name).arg(number)});
    }
    PropertyList::Array types;
    for (int number = 0; number < 6; ++number) {
        const PropertyList::Array extensions = {{u"ext%1"_s.arg(number)}, {u"x%1"_s.arg(number)}};
        types.append({PropertyList::Dictionary{{u"CFBundleTypeName"_s, {u"Document %1"_s.arg(number)}},
                                               {u"CFBundleTypeRole"_s, {u"Editor"_s}},
                                               {u"CFBundleTypeExtensions"_s, {extensions}},
                                               {u"LSTypeIsPackage"_s, {false}}}});
    }
    values.insert(u"CFBundleDocumentTypes"_s, {types});
    return {values};
}

} // namespace

Fixture::Fixture(int applications, int tiles) {
    qputenv("HOME", QFile::encodeName(m_directory.path()));
    qputenv("KELVANE_HOME", QFile::encodeName(path("Kelvane")));
    qputenv("KELVANE_DRY_RUN", QFile::encodeName(path("dock.plist")));
    QDir().mkpath(path("Applications"));
    for (int number = 0; number < applications; ++number) {
        makeBundle(number);
    }
    PropertyList::Array raw;
    for (int number = 0; number < qMin(tiles, applications); ++number) {
        m_tiles.append(DockTile::app(m_applications.at(number)));
        raw.append({m_tiles.last().raw});
    }
    const PropertyList::Dictionary dock = {{u"persistent-apps"_s, {raw}}, {u"show-recents"_s, {false}}};
    write(path("dock.plist"), PropertyList{dock}.serialize(PropertyList::Format::xml));
    makeSupport();
    makeUsage(applications);
}

QString Fixture::path(const char* below) const {
    return m_directory.filePath(QString::fromUtf8(below));
}

QString Fixture::identifier(int number) {
    return u"org.example.application%1"_s.arg(number);
}

void Fixture::makeBundle(int number) {
    const QString name = u"Application %1"_s.arg(number);
    const QString bundle = path("Applications/") + name + u".app"_s;
    QDir().mkpath(bundle + u"/Contents"_s);
    const auto format = number % 2 == 0 ? PropertyList::Format::xml : PropertyList::Format::binary;
    m_infoFiles.append(bundle + u"/Contents/Info.plist"_s);
    write(m_infoFiles.last(), info(identifier(number), name).serialize(format));
    m_applications.append({identifier(number), name, bundle});

    PropertyList::Array dates;
    for (int day = 0; day < openedDays; ++day) {
        dates.append({PropertyList::Date{double(m_now.toSecsSinceEpoch() - 978307200 - day * 86400LL)}});
    }
    const QByteArray bytes = PropertyList{dates}.serialize(PropertyList::Format::binary);
    m_hasMetadata =
        m_hasMetadata && setxattr(QFile::encodeName(bundle).constData(), "user.com.apple.metadata:kMDItemUsedDates",
                                  bytes.constData(), size_t(bytes.size()), 0) == 0;
}

void Fixture::drawIcons() const {
    constexpr int side = 128;
    for (const AppInfo& application : m_applications) {
        QImage picture(side, side, QImage::Format_ARGB32);
        const uint seed = uint(qHash(application.bundleID));
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x) {
                picture.setPixel(x, y, qRgba(int(seed % 256), 2 * x, 2 * y, std::min(255, 16 * std::min(x, y))));
            }
        }
        QDir().mkpath(application.path + u"/Contents/Resources"_s);
        if (!picture.save(application.path + u"/Contents/Resources/Application.png"_s)) {
            qFatal("the pictures could not be written");
        }
    }
}

void Fixture::makeUsage(int applications) const {
    UsageStore usage(usageFile());
    for (int day = storedDays - 1; day >= 0; --day) {
        const QDateTime moment = m_now.addDays(-day);
        for (int number = 0; number < applications; ++number) {
            // Every application has its own, so that no two tie.
            usage.addSeconds(600.5 + number * 7 + day % 5, identifier(number), u"Application %1"_s.arg(number), moment);
            usage.addActivation(identifier(number), std::nullopt, moment);
        }
    }
    usage.save(m_now);
}

Profile Fixture::profile() const {
    QStringList pinned;
    for (int number = 0; number < 5; ++number) {
        pinned.append(identifier(number));
    }
    Profile profile = Profile::make(u"Bench"_s, u"briefcase"_s, pinned, {}, 19, UsageWindow::month, false);
    profile.id = QUuid(u"{00000000-0000-4000-8000-000000000001}"_s);
    return profile;
}

Profile Fixture::turnedProfile() const {
    Profile turned = profile();
    turned.id = QUuid(u"{00000000-0000-4000-8000-000000000002}"_s);
    turned.name = u"Turned"_s;
    std::ranges::reverse(turned.pinned);
    return turned;
}

void Fixture::makeSupport() const {
    QDir().mkpath(path("Kelvane"));
    JSONFile::save(QJsonArray{profile().toJson(), turnedProfile().toJson()}, path("Kelvane/profiles.json"));
    AppSettings settings;
    settings.onboarded = true;
    settings.activeProfileID = profile().id;
    JSONFile::save(settings.toJson(), path("Kelvane/settings.json"));
}
