#pragma once

#include <QtGlobal>

namespace DockCore {

class Bundles;
class Clock;
class Folders;
class Metadata;
class Preferences;
class Processes;

/// The computer as the logic sees it: one adapter a port, installed once by `main`, replaced for a while by tests.
/// It owns none of them; all stay alive as long as it is installed. Install on the main thread, before other threads.
struct Services {
    Preferences& preferences;
    Processes& processes;
    Bundles& bundles;
    Folders& folders;
    Metadata& metadata;
    Clock& clock;

    /// The installed platform; fatal when there is none.
    static const Services& current();
    /// Changes with every installation, so that what is kept for the whole process can start anew with it.
    static quint64 generation();
};

/// Installs a platform for its own lifetime and then brings the one before back.
class ServicesScope {
public:
    explicit ServicesScope(const Services& platform);
    ~ServicesScope();
    ServicesScope(const ServicesScope&) = delete;
    ServicesScope& operator=(const ServicesScope&) = delete;

private:
    Services m_platform;
    const Services* m_previous;
};

} // namespace DockCore
