#include "Platform/Linux/LinuxMetadata.h"

#include "DockCore/Storage/PropertyList.h"

#include <QFile>

#include <array>
#include <cerrno>
#include <cmath>
#include <linux/limits.h>
#include <sys/xattr.h>
#include <variant>

using DockCore::PropertyList;

namespace Platform {

namespace {

constexpr const char* usedDates = "user.com.apple.metadata:kMDItemUsedDates";
constexpr const char* lastUsedDate = "user.com.apple.metadata:kMDItemLastUsedDate";

/// 2001-01-01 00:00 UTC in seconds since 1970.
constexpr double referenceDate = 978307200;
/// Some 270,000 years either way: what calendars can still count.
constexpr double furthestMoment = 8.64e12;

struct Attribute {
    bool isFileThere = false;
    std::optional<PropertyList> value;
};

Attribute attribute(const QByteArray& path, const char* name) {
    // The kernel lets no attribute grow beyond this, so one call suffices and there is no size to race with.
    std::array<char, XATTR_SIZE_MAX> buffer; // NOLINT(cppcoreguidelines-pro-type-member-init): the kernel fills it
    const ssize_t size = ::getxattr(path.constData(), name, buffer.data(), buffer.size());
    if (size < 0) {
        return {.isFileThere =
                    errno != ENOENT && errno != ENOTDIR && errno != EACCES && errno != ELOOP && errno != ENAMETOOLONG,
                .value = std::nullopt};
    }
    const QByteArray bytes = QByteArray::fromRawData(buffer.data(), size);
    if (PropertyList::format(bytes) != PropertyList::Format::binary)
        return {.isFileThere = true, .value = std::nullopt};
    return {.isFileThere = true, .value = PropertyList::parse(bytes)};
}

std::optional<QDateTime> moment(const PropertyList& value) {
    const auto* date = std::get_if<PropertyList::Date>(&value.value);
    if (date == nullptr || !(std::abs(date->seconds) < furthestMoment))
        return std::nullopt;
    return QDateTime::fromMSecsSinceEpoch(std::llround((date->seconds + referenceDate) * 1000), Qt::UTC);
}

std::optional<QList<QDateTime>> moments(const PropertyList& value) {
    const PropertyList::Array* array = value.array();
    if (array == nullptr)
        return std::nullopt;
    QList<QDateTime> dates;
    dates.reserve(array->size());
    for (const PropertyList& element : *array) {
        const std::optional<QDateTime> date = moment(element);
        if (!date)
            return std::nullopt;
        dates.append(*date);
    }
    return dates;
}

} // namespace

std::optional<DockCore::Metadata::Item> LinuxMetadata::item(const QString& path) {
    const QByteArray file = QFile::encodeName(path);
    const Attribute used = attribute(file, usedDates);
    if (!used.isFileThere)
        return std::nullopt;
    const Attribute last = attribute(file, lastUsedDate);
    return Item{.usedDates = used.value ? moments(*used.value) : std::nullopt,
                .lastUsedDate = last.value ? moment(*last.value) : std::nullopt};
}

} // namespace Platform
