#include "MacOS/FakeCoreFoundation/FakeCoreFoundation.h"

#include "MacOS/FakeCoreFoundation/Object.h"

#include <CoreGraphics/CoreGraphics.h>
#include <CoreServices/CoreServices.h>

using DockCore::PropertyList;
using FakeCoreFoundation::computer;
using FakeCoreFoundation::makeObjectTree;
using FakeCoreFoundation::object;
using FakeCoreFoundation::Object;
using Kind = FakeCoreFoundation::Object::Kind;

namespace {

FakeCoreFoundation::Computer theComputer;

/// One domain as this process sees it: what it last loaded, and what it set since.
struct Domain {
    std::optional<PropertyList::Dictionary> loaded;
    QMap<QString, std::optional<PropertyList>> pending;
};
QMap<QString, Domain> domains;

/// The strings written in the sources, which live as long as the process.
class Constants {
public:
    // The objects' own register is made first, so that it is still there when these end.
    Constants() { FakeCoreFoundation::liveObjects(); }
    ~Constants() {
        for (Object* constant : std::as_const(m_byCharacters)) {
            constant->isConstant = false;
            FakeCoreFoundation::release(*constant);
        }
    }
    Constants(const Constants&) = delete;
    Constants& operator=(const Constants&) = delete;

    const Object* find(const char* characters) {
        Object*& constant = m_byCharacters[characters];
        if (constant == nullptr) {
            constant = const_cast<Object*>(makeObjectTree({QString::fromUtf8(characters)}));
            constant->isConstant = true;
        }
        return constant;
    }

private:
    QMap<QByteArray, Object*> m_byCharacters;
};

QString text(CFStringRef string) {
    return *object(string, Kind::string).scalar.string();
}

template <typename Reference>
Reference as(const Object* object) {
    return reinterpret_cast<Reference>(const_cast<Object*>(object));
}

} // namespace

namespace FakeCoreFoundation {

Computer& computer() {
    return theComputer;
}

void reset() {
    theComputer = {};
    domains.clear();
}

} // namespace FakeCoreFoundation

extern "C" {

const CFAllocatorRef kCFAllocatorDefault = nullptr;
const CFStringRef kMDItemLastUsedDate = __CFStringMakeConstantString("kMDItemLastUsedDate");

void CFRelease(CFTypeRef reference) {
    FakeCoreFoundation::release(object(reference));
}

CFTypeID CFGetTypeID(CFTypeRef reference) {
    return static_cast<CFTypeID>(object(reference).kind);
}

CFTypeID CFArrayGetTypeID() {
    return static_cast<CFTypeID>(Kind::array);
}

CFIndex CFArrayGetCount(CFArrayRef array) {
    return static_cast<CFIndex>(object(array, Kind::array).elements.size());
}

const void* CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index) {
    return object(array, Kind::array).elements.at(static_cast<std::size_t>(index));
}

CFTypeID CFDateGetTypeID() {
    return static_cast<CFTypeID>(Kind::date);
}

CFAbsoluteTime CFDateGetAbsoluteTime(CFDateRef date) {
    return std::get<PropertyList::Date>(object(date, Kind::date).scalar.value).seconds;
}

CFDataRef CFDataCreate(CFAllocatorRef, const UInt8* bytes, CFIndex length) {
    return as<CFDataRef>(makeObjectTree({QByteArray(reinterpret_cast<const char*>(bytes), length)}));
}

const UInt8* CFDataGetBytePtr(CFDataRef data) {
    return reinterpret_cast<const UInt8*>(std::get<QByteArray>(object(data, Kind::data).scalar.value).constData());
}

CFIndex CFDataGetLength(CFDataRef data) {
    return std::get<QByteArray>(object(data, Kind::data).scalar.value).size();
}

CFStringRef CFStringCreateWithCharacters(CFAllocatorRef, const UniChar* characters, CFIndex length) {
    return as<CFStringRef>(makeObjectTree({QString::fromUtf16(reinterpret_cast<const char16_t*>(characters), length)}));
}

CFStringRef __CFStringMakeConstantString(const char* characters) {
    static Constants constants;
    return as<CFStringRef>(constants.find(characters));
}

CFDataRef CFPropertyListCreateData(CFAllocatorRef, CFPropertyListRef value, CFPropertyListFormat format, CFOptionFlags,
                                   CFErrorRef*) {
    const std::optional<PropertyList> list = FakeCoreFoundation::valueOf(object(value));
    if (!list || format != kCFPropertyListBinaryFormat_v1_0) {
        return nullptr;
    }
    return as<CFDataRef>(makeObjectTree({list->serialize(PropertyList::Format::binary)}));
}

CFPropertyListRef CFPropertyListCreateWithData(CFAllocatorRef, CFDataRef data, CFOptionFlags, CFPropertyListFormat*,
                                               CFErrorRef*) {
    const auto list = PropertyList::parse(std::get<QByteArray>(object(data, Kind::data).scalar.value));
    return list ? makeObjectTree(*list) : nullptr;
}

CFPropertyListRef CFPreferencesCopyAppValue(CFStringRef key, CFStringRef applicationID) {
    const QString domainName = text(applicationID);
    Domain& domain = domains[domainName];
    if (!domain.loaded) {
        domain.loaded = computer().preferences.value(domainName);
    }
    const QString name = text(key);
    if (const auto set = domain.pending.constFind(name); set != domain.pending.constEnd()) {
        return *set ? makeObjectTree(**set) : nullptr;
    }
    const auto stored = domain.loaded->constFind(name);
    return stored == domain.loaded->constEnd() ? nullptr : makeObjectTree(*stored);
}

void CFPreferencesSetAppValue(CFStringRef key, CFPropertyListRef value, CFStringRef applicationID) {
    std::optional<PropertyList> given;
    if (value != nullptr) {
        given = FakeCoreFoundation::valueOf(object(value));
        if (!given) {
            FakeCoreFoundation::fail("a value was set that no property list can hold");
        }
    }
    domains[text(applicationID)].pending[text(key)] = given;
}

Boolean CFPreferencesAppSynchronize(CFStringRef applicationID) {
    const QString name = text(applicationID);
    Domain& domain = domains[name];
    const bool saves = !domain.pending.isEmpty();
    if (saves && computer().refusesToSave) {
        return 0;
    }
    PropertyList::Dictionary& stored = computer().preferences[name];
    for (auto change = domain.pending.constBegin(); change != domain.pending.constEnd(); ++change) {
        if (*change) {
            stored.insert(change.key(), **change);
        } else {
            stored.remove(change.key());
        }
    }
    domain.pending.clear();
    domain.loaded = stored;
    return 1;
}

MDItemRef MDItemCreate(CFAllocatorRef, CFStringRef path) {
    if (!computer().metadata.contains(text(path))) {
        return nullptr;
    }
    Platform::Owner<CFTypeRef> item = FakeCoreFoundation::makeForeignObject();
    auto* made = const_cast<Object*>(&object(item.borrow()));
    made->path = text(path);
    ++made->references;
    return reinterpret_cast<MDItemRef>(made);
}

CFTypeRef MDItemCopyAttribute(MDItemRef item, CFStringRef name) {
    const PropertyList::Dictionary attributes = computer().metadata.value(object(item, Kind::foreign).path);
    const auto attribute = attributes.constFind(text(name));
    return attribute == attributes.constEnd() ? nullptr : makeObjectTree(*attribute);
}

CFTimeInterval CGEventSourceSecondsSinceLastEventType(CGEventSourceStateID state, CGEventType type) {
    if (state != kCGEventSourceStateCombinedSessionState || type != kCGAnyInputEventType) {
        FakeCoreFoundation::fail("asked for the idle time of something else");
    }
    return computer().secondsSinceLastInput;
}
}
