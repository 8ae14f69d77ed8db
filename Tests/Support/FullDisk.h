#pragma once

#include <QtGlobal>

#include <csignal>
#include <sys/resource.h>

/// While it lives, no file of this process can grow beyond a size: writing further fails as it does on a full disk.
class FullDisk {
public:
    explicit FullDisk(rlim_t largestFile)
        : m_previousHandler(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &m_previous);
        rlimit limit = m_previous;
        limit.rlim_cur = largestFile;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &m_previous);
        std::signal(SIGXFSZ, m_previousHandler);
    }
    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    rlimit m_previous = {};
    void (*m_previousHandler)(int);
};
