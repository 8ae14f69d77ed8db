#pragma once

namespace DockCore {

class Bundles;
class Clock;
class Folders;
class Metadata;
class Preferences;
class Processes;

/// What the logic needs from the computer, one reference a port. `main` owns the adapters and passes this on; an object
/// keeps the references it needs. All of them outlive every object that was given one.
struct Services {
    Preferences& preferences;
    Processes& processes;
    Bundles& bundles;
    Folders& folders;
    Metadata& metadata;
    Clock& clock;
};

} // namespace DockCore
