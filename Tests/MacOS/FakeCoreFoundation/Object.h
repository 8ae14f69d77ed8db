#pragma once

#include "DockCore/Storage/PropertyList.h"

#include <CoreFoundation/CoreFoundation.h>

#include <vector>

namespace FakeCoreFoundation {

/// One object of the fake, alive while references are left. Scalars keep their value, containers their elements, each
/// of which they own one reference of.
struct Object {
    enum class Kind : CFTypeID { string = 7, boolean, number, data, date, uid, array, dictionary, foreign };

    Kind kind = Kind::foreign;
    int references = 1;
    bool isConstant = false;
    DockCore::PropertyList scalar;
    std::vector<const Object*> elements;
    /// Of a dictionary, in the order of the elements.
    QStringList keys;
    /// Of a foreign object: the file that it stands for.
    QString path;

    ~Object();
};

/// A new object with one reference.
const Object* makeObjectTree(const DockCore::PropertyList& value);
/// The value again; nothing when a foreign object is part of it.
std::optional<DockCore::PropertyList> valueOf(const Object& object);

/// The object behind a reference, which must not be null or released.
const Object& object(CFTypeRef reference);
/// The same, which must be of this kind.
const Object& object(CFTypeRef reference, Object::Kind kind);
void release(const Object& object);
[[noreturn]] void fail(const char* reason);

} // namespace FakeCoreFoundation
