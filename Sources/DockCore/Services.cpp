#include "DockCore/Services.h"

#include <atomic>

namespace DockCore {

namespace {
std::atomic<const Services*> installed = nullptr;
std::atomic<quint64> installations = 0;

void install(const Services* platform) {
    installed = platform;
    ++installations;
}
} // namespace

const Services& Services::current() {
    const Services* platform = installed;
    if (platform == nullptr)
        qFatal("No platform is installed.");
    return *platform;
}

quint64 Services::generation() {
    return installations;
}

ServicesScope::ServicesScope(const Services& platform)
    : m_platform(platform)
    , m_previous(installed) {
    install(&m_platform);
}

ServicesScope::~ServicesScope() {
    install(m_previous);
}

} // namespace DockCore
