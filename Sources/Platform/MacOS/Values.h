#pragma once

#include "DockCore/Storage/PropertyList.h"
#include "Platform/MacOS/Owner.h"

#include <QDateTime>
#include <QList>
#include <QString>

#include <optional>

/// Our values to and from CoreFoundation's. Property lists cross as binary data through the system's own serializer, so
/// that no type is guessed and nothing is lost. Any thread.
namespace Platform {

/// The string with the same characters; nothing only when memory is short.
Owner<CFStringRef> makeString(const QString& text);

/// The value as CoreFoundation's objects; nothing when it cannot be written as a property list.
Owner<CFPropertyListRef> makePropertyList(const DockCore::PropertyList& value);
/// The value of these objects; nothing when they are no property list.
std::optional<DockCore::PropertyList> propertyList(CFPropertyListRef value);

/// The moment, to the millisecond; nothing when `value` is null or no date.
std::optional<QDateTime> date(CFTypeRef value);
/// The moments in order; nothing when `value` is null, no array, or holds anything but dates.
std::optional<QList<QDateTime>> dates(CFTypeRef value);

} // namespace Platform
