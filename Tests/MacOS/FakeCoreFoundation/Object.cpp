#include "MacOS/FakeCoreFoundation/Object.h"

#include "MacOS/FakeCoreFoundation/FakeCoreFoundation.h"

#include <QSet>

#include <cstdio>
#include <cstdlib>

namespace FakeCoreFoundation {

using DockCore::PropertyList;

namespace {

/// Every object that is alive: an address that is not in here is no object any more.
QSet<const Object*>& living() {
    static QSet<const Object*> objects;
    return objects;
}

Object::Kind kindOf(const PropertyList& value) {
    struct Visitor {
        Object::Kind operator()(bool) const { return Object::Kind::boolean; }
        Object::Kind operator()(qint64) const { return Object::Kind::number; }
        Object::Kind operator()(quint64) const { return Object::Kind::number; }
        Object::Kind operator()(double) const { return Object::Kind::number; }
        Object::Kind operator()(const QString&) const { return Object::Kind::string; }
        Object::Kind operator()(const QByteArray&) const { return Object::Kind::data; }
        Object::Kind operator()(PropertyList::Date) const { return Object::Kind::date; }
        Object::Kind operator()(PropertyList::UID) const { return Object::Kind::uid; }
        Object::Kind operator()(const PropertyList::Array&) const { return Object::Kind::array; }
        Object::Kind operator()(const PropertyList::Dictionary&) const { return Object::Kind::dictionary; }
    };
    return std::visit(Visitor(), value.value);
}

} // namespace

Object::~Object() {
    for (const Object* element : elements) {
        release(*element);
    }
}

const Object* makeObjectTree(const PropertyList& value) {
    auto* made = new Object;
    made->kind = kindOf(value);
    if (const PropertyList::Array* array = value.array()) {
        for (const PropertyList& element : *array) {
            made->elements.push_back(makeObjectTree(element));
        }
    } else if (const PropertyList::Dictionary* dictionary = value.dictionary()) {
        for (auto entry = dictionary->begin(); entry != dictionary->end(); ++entry) {
            made->keys.append(entry.key());
            made->elements.push_back(makeObjectTree(entry.value()));
        }
    } else {
        made->scalar = value;
    }
    living().insert(made);
    return made;
}

std::optional<PropertyList> valueOf(const Object& object) {
    if (object.kind == Object::Kind::foreign) {
        return std::nullopt;
    }
    if (object.kind != Object::Kind::array && object.kind != Object::Kind::dictionary) {
        return object.scalar;
    }
    PropertyList::Array array;
    PropertyList::Dictionary dictionary;
    for (std::size_t index = 0; index < object.elements.size(); ++index) {
        const std::optional<PropertyList> element = valueOf(*object.elements[index]);
        if (!element) {
            return std::nullopt;
        }
        if (object.kind == Object::Kind::array) {
            array.append(*element);
        } else {
            dictionary.insert(object.keys[static_cast<qsizetype>(index)], *element);
        }
    }
    return object.kind == Object::Kind::array ? PropertyList{array} : PropertyList{dictionary};
}

const Object& object(CFTypeRef reference) {
    if (reference == nullptr) {
        fail("null was given for an object");
    }
    const auto* found = static_cast<const Object*>(reference);
    if (!living().contains(found)) {
        fail("an object was used after its last release");
    }
    return *found;
}

const Object& object(CFTypeRef reference, Object::Kind kind) {
    const Object& found = object(reference);
    if (found.kind != kind) {
        fail("an object of the wrong type was given");
    }
    return found;
}

void release(const Object& object) {
    auto& mutableObject = const_cast<Object&>(object);
    if (object.isConstant || --mutableObject.references > 0) {
        return;
    }
    living().remove(&object);
    delete &object;
}

void fail(const char* reason) {
    std::fprintf(stderr, "FakeCoreFoundation: %s\n", reason);
    std::abort();
}

int liveObjects() {
    int count = 0;
    for (const Object* object : living()) {
        count += object->isConstant ? 0 : 1;
    }
    return count;
}

Platform::Owner<CFPropertyListRef> makeObject(const PropertyList& value) {
    return Platform::Owner<CFPropertyListRef>(makeObjectTree(value));
}

Platform::Owner<CFTypeRef> makeForeignObject() {
    auto* made = new Object;
    living().insert(made);
    return Platform::Owner<CFTypeRef>(made);
}

} // namespace FakeCoreFoundation
