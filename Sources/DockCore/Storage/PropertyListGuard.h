#pragma once

#include <QByteArray>

namespace DockCore {

/// Looks at the bytes of a property list before they are parsed, and refuses what would exhaust the stack or the memory
/// or what the parser would bend: cycles, too many levels or values, strings with parts it cannot carry. It does not
/// say that the rest is well-formed. Any thread may call it.
namespace PropertyListGuard {

/// Arrays and dictionaries within each other.
constexpr int maximumLevels = 512;
/// A value counts as often as it is referred to.
constexpr quint64 maximumValues = 5'000'000;
/// All strings and data together, in bytes, each as often as it is referred to.
constexpr quint64 maximumContent = 512ULL * 1024 * 1024;

bool acceptsBinary(const QByteArray& bytes);
bool acceptsXML(const QByteArray& bytes);

} // namespace PropertyListGuard
} // namespace DockCore
