#pragma once

#include <span>

namespace Platform {

/// One thing of the system that these adapters use, by the name under which the running system can be asked for it.
/// A plain value.
struct SystemInterface {
    enum class Kind { type, classMethod, instanceMethod, symbol };
    Kind kind;
    /// The class of a method; null otherwise.
    const char* owner;
    const char* name;
    /// The first major version of the system that has it; the program itself needs 13.
    int firstSystem = 13;
};

/// All of them. A test holds this list against the declarations that the adapters are checked with.
std::span<const SystemInterface> systemInterfaces();

} // namespace Platform
