#include "Platform/MacOS/Values.h"

#include <cmath>

namespace Platform {

Owner<CFStringRef> makeString(const QString& text) {
    return Owner(CFStringCreateWithCharacters(kCFAllocatorDefault, reinterpret_cast<const UniChar*>(text.utf16()),
                                              static_cast<CFIndex>(text.size())));
}

Owner<CFPropertyListRef> makePropertyList(const DockCore::PropertyList& value) {
    const QByteArray bytes = value.serialize(DockCore::PropertyList::Format::binary);
    if (bytes.isEmpty())
        return {};
    const Owner data(CFDataCreate(kCFAllocatorDefault, reinterpret_cast<const UInt8*>(bytes.constData()),
                                  static_cast<CFIndex>(bytes.size())));
    if (!data)
        return {};
    return Owner<CFPropertyListRef>(
        CFPropertyListCreateWithData(kCFAllocatorDefault, data.borrow(), kCFPropertyListImmutable, nullptr, nullptr));
}

std::optional<DockCore::PropertyList> propertyList(CFPropertyListRef value) {
    const Owner data(
        CFPropertyListCreateData(kCFAllocatorDefault, value, kCFPropertyListBinaryFormat_v1_0, 0, nullptr));
    if (!data)
        return std::nullopt;
    return DockCore::PropertyList::parse(QByteArray(reinterpret_cast<const char*>(CFDataGetBytePtr(data.borrow())),
                                                    static_cast<qsizetype>(CFDataGetLength(data.borrow()))));
}

std::optional<QDateTime> date(CFTypeRef value) {
    if (value == nullptr || CFGetTypeID(value) != CFDateGetTypeID())
        return std::nullopt;
    // CoreFoundation counts seconds from the first moment of 2001.
    constexpr double secondsFrom1970To2001 = 978307200;
    const double seconds = CFDateGetAbsoluteTime(static_cast<CFDateRef>(value)) + secondsFrom1970To2001;
    return QDateTime::fromMSecsSinceEpoch(std::llround(seconds * 1000), Qt::UTC);
}

std::optional<QList<QDateTime>> dates(CFTypeRef value) {
    if (value == nullptr || CFGetTypeID(value) != CFArrayGetTypeID())
        return std::nullopt;
    const auto array = static_cast<CFArrayRef>(value);
    QList<QDateTime> result;
    for (CFIndex index = 0; index < CFArrayGetCount(array); ++index) {
        const std::optional<QDateTime> element = date(CFArrayGetValueAtIndex(array, index));
        if (!element)
            return std::nullopt;
        result.append(*element);
    }
    return result;
}

} // namespace Platform
