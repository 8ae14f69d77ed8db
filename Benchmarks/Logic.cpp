#include "Logic.h"

#include "DockCore/AppCatalog.h"
#include "DockCore/LayoutPlanner.h"
#include "DockCore/Ranker.h"
#include "DockCore/UsageStore.h"
#include "Fixture.h"
#include "Platform/Linux/LinuxServices.h"

#include <QFile>
#include <QJsonDocument>

#include <algorithm>
#include <fcntl.h>
#include <memory>
#include <optional>
#include <plist/plist.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

using namespace DockCore;

namespace {

/// Keeps what is computed from being optimised away.
volatile qint64 sink = 0;

void require(bool condition, const char* what) {
    if (!condition) {
        qFatal("The benchmark measures nothing: %s.", what);
    }
}

/// The services and the catalog of a process that has just started.
struct FreshComputer {
    Platform::LinuxServices system;
    AppCatalog catalog = AppCatalog(system.services().bundles, system.services().folders);
};

void openAndParse(const std::vector<QByteArray>& files) {
    std::vector<char> bytes;
    for (const QByteArray& path : files) {
        const int file = ::open(path.constData(), O_RDONLY);
        struct stat status = {};
        ::fstat(file, &status);
        bytes.resize(size_t(status.st_size));
        const ssize_t size = ::read(file, bytes.data(), bytes.size());
        ::close(file);
        plist_t list = nullptr;
        plist_from_memory(bytes.data(), uint32_t(size), &list);
        require(list != nullptr, "an Info.plist is no property list");
        plist_free(list);
    }
}

std::vector<QByteArray> encoded(const QStringList& paths) {
    std::vector<QByteArray> names;
    for (const QString& path : paths) {
        names.push_back(QFile::encodeName(path));
    }
    return names;
}

} // namespace

Stopwatch::Pair Logic::scanning(const Fixture& fixture, int runs) {
    const std::vector<QByteArray> files = encoded(fixture.infoFiles());
    std::optional<FreshComputer> computer;
    return Stopwatch::medians(
        Stopwatch::Time::processor, runs,
        [&] {
            const qsizetype found = computer->catalog.installedApps(AppCatalog::Scan::refresh).size();
            require(found == fixture.infoFiles().size(), "not every bundle is found");
        },
        [&] { openAndParse(files); }, [&] { computer.emplace(); });
}

Stopwatch::Pair Logic::scanningAgain(const Fixture& fixture, int runs) {
    const std::vector<QByteArray> files = encoded(fixture.infoFiles());
    FreshComputer computer;
    computer.catalog.installedApps(AppCatalog::Scan::refresh);
    return Stopwatch::medians(
        Stopwatch::Time::processor, runs,
        [&] { sink = sink + computer.catalog.installedApps(AppCatalog::Scan::refresh).size(); },
        [&] {
            for (const QByteArray& file : files) {
                struct stat status = {};
                sink = sink + ::stat(file.constData(), &status);
            }
        });
}

Stopwatch::Pair Logic::rankingAndPlanning(const Fixture& fixture, int runs) {
    FreshComputer computer;
    computer.catalog.installedApps(AppCatalog::Scan::refresh);
    const UsageStore usage(fixture.usageFile());
    const Profile profile = fixture.profile();
    const size_t applications = size_t(fixture.infoFiles().size());
    const std::vector<double> numbers(applications * size_t(days(profile.window)) * 2, 1.5);
    return Stopwatch::medians(
        Stopwatch::Time::processor, runs,
        [&] {
            const QList<AppScore> ranking = Ranker::rank(usage, profile.window, computer.catalog,
                                                         &computer.system.services().metadata, fixture.now());
            require(ranking.size() == fixture.infoFiles().size(), "not every application is ranked");
            sink = sink + LayoutPlanner::plan(profile, ranking, fixture.tiles(), computer.catalog).size();
        },
        [&] {
            std::vector<double> sums(applications);
            for (size_t index = 0; index < numbers.size(); ++index) {
                sums[index % applications] += numbers[index] * double(index % 7);
            }
            std::sort(sums.begin(), sums.end());
            sink = sink + qint64(sums.back());
        });
}

Stopwatch::Pair Logic::loading(const Fixture& fixture, int runs) {
    FreshComputer computer;
    return Stopwatch::medians(
        Stopwatch::Time::processor, runs,
        [&] {
            const UsageStore usage(fixture.usageFile());
            require(usage.trackingSince().has_value(), "the usage file is not read");
        },
        [&] {
            QFile file(fixture.usageFile());
            require(file.open(QIODevice::ReadOnly), "the usage file cannot be opened");
            sink = sink + QJsonDocument::fromJson(file.readAll()).isNull();
        });
}

Stopwatch::Pair Logic::loadingAndSaving(const Fixture& fixture, int runs) {
    FreshComputer computer;
    return Stopwatch::medians(
        Stopwatch::Time::passed, runs,
        [&] {
            UsageStore usage(fixture.usageFile());
            require(usage.trackingSince().has_value(), "the usage file is not read");
            usage.addActivation(QStringLiteral("org.example.application0"), std::nullopt, fixture.now());
            usage.save(fixture.now());
        },
        [&] {
            QFile file(fixture.usageFile());
            require(file.open(QIODevice::ReadOnly), "the usage file cannot be opened");
            const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
            QFile copy(fixture.otherUsageFile());
            require(copy.open(QIODevice::WriteOnly), "the copy cannot be opened");
            sink = sink + copy.write(document.toJson());
        });
}
