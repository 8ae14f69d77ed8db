#pragma once

#include <csignal>
#include <sys/resource.h>

/// While one lives, this process can write nothing into any file, as on a full disk: making and renaming still work.
class FullDisk {
public:
    FullDisk() {
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_limit);
        const rlimit none = {.rlim_cur = 0, .rlim_max = m_limit.rlim_max};
        setrlimit(RLIMIT_FSIZE, &none);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &m_limit);
        std::signal(SIGXFSZ, m_handler);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit m_limit = {};
    void (*m_handler)(int) = nullptr;
};
