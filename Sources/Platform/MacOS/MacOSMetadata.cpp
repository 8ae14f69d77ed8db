#include "Platform/MacOS/MacOSMetadata.h"

#include "Platform/MacOS/Values.h"

#include <CoreServices/CoreServices.h>

namespace Platform {

std::optional<DockCore::Metadata::Item> MacOSMetadata::item(const QString& path) {
    const Owner name = makeString(path);
    const Owner<MDItemRef> record(MDItemCreate(kCFAllocatorDefault, name.borrow()));
    if (!record)
        return std::nullopt;
    // The used dates have no public symbol, only this name.
    const Owner<CFTypeRef> usedDates(MDItemCopyAttribute(record.borrow(), CFSTR("kMDItemUsedDates")));
    const Owner<CFTypeRef> lastUsedDate(MDItemCopyAttribute(record.borrow(), kMDItemLastUsedDate));
    return Item{.usedDates = dates(usedDates.borrow()), .lastUsedDate = date(lastUsedDate.borrow())};
}

} // namespace Platform
