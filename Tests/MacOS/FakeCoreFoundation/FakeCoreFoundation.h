#pragma once

#include "DockCore/Storage/PropertyList.h"
#include "Platform/MacOS/Owner.h"

#include <QMap>
#include <QString>

/// A small CoreFoundation in memory, so that the adapters over its C interface run, under sanitizers, where there is no
/// macOS. It counts references and ends the process on what the real one would not survive: a null object, one of the
/// wrong type, one released too often. One thread.
namespace FakeCoreFoundation {

/// What the fake computer holds and how it behaves.
struct Computer {
    /// By domain, as saved.
    QMap<QString, DockCore::PropertyList::Dictionary> preferences;
    bool refusesToSave = false;
    /// By path, the attributes of the files that the metadata index knows.
    QMap<QString, DockCore::PropertyList::Dictionary> metadata;
    double secondsSinceLastInput = 0;
};

/// The computer that all functions act on.
Computer& computer();
/// Makes it empty again and forgets what was not yet saved.
void reset();

/// Objects that somebody still owns; constant strings do not count.
int liveObjects();
/// A new object with this value, one reference of which is the caller's.
Platform::Owner<CFPropertyListRef> makeObject(const DockCore::PropertyList& value);
/// A new object that no property list can hold.
Platform::Owner<CFTypeRef> makeForeignObject();

} // namespace FakeCoreFoundation
