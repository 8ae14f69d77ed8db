#pragma once

#include <QByteArray>
#include <QList>

#include <plist/plist.h>

#include <cstdlib>
#include <memory>

namespace DockCore {

/// The nodes of libplist, owned, and its ways in and out of them. It mends what they do to some values: integers above
/// the signed range, dates, and reals where the locale has a decimal comma. It does not judge the bytes; see
/// PropertyListGuard. Any thread may use its own nodes.
namespace PropertyListNode {

struct Deleter {
    void operator()(void* node) const { plist_free(node); }
};
using Node = std::unique_ptr<void, Deleter>;

struct MemoryDeleter {
    // NOLINTNEXTLINE(cppcoreguidelines-no-malloc): that is how it is allocated there.
    void operator()(void* memory) const { std::free(memory); }
};
/// What libplist gives away to be freed.
template <typename Type>
using Memory = std::unique_ptr<Type, MemoryDeleter>;

/// Null when the bytes are damaged.
Node fromBinary(const QByteArray& bytes);
Node fromXML(const QByteArray& bytes);
/// Empty for a null node.
QByteArray toXML(const Node& node);

/// A node that holds the one object written here in binary form, marker first, and the way back. They are for values
/// that libplist holds whole, but takes in and hands out only in part.
Node ofObject(const QByteArray& object);
QByteArray object(plist_t node);

/// The seconds of all elements of an array that holds nothing but dates. Writing a node costs the same for one date as
/// for a hundred.
QList<double> datesOf(plist_t array);

} // namespace PropertyListNode
} // namespace DockCore
