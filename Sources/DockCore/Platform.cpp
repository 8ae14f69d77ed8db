#include "DockCore/Platform.h"

#include <atomic>

namespace DockCore {

namespace {
std::atomic<const Platform*> installed = nullptr;
std::atomic<quint64> installations = 0;

void install(const Platform* platform) {
    installed = platform;
    ++installations;
}
} // namespace

const Platform& Platform::current() {
    const Platform* platform = installed;
    if (platform == nullptr)
        qFatal("No platform is installed.");
    return *platform;
}

quint64 Platform::generation() {
    return installations;
}

PlatformScope::PlatformScope(const Platform& platform)
    : m_platform(platform)
    , m_previous(installed) {
    install(&m_platform);
}

PlatformScope::~PlatformScope() {
    install(m_previous);
}

} // namespace DockCore
