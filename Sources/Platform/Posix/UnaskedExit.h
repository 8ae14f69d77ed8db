#pragma once

#include <functional>

/// The end that a library brings about in the middle of the event loop: Qt calls `exit` with status 1 as soon as the
/// display's server has gone, and nobody returns to `main`. While this object lives, such an end first saves, and then
/// leaves with status 0, because a session that ended is no failure of ours; no destructor runs. One a process; made
/// and destroyed on the main thread.
class UnaskedExit {
public:
    explicit UnaskedExit(std::function<void()> save);
    ~UnaskedExit();
    UnaskedExit(const UnaskedExit&) = delete;
    UnaskedExit& operator=(const UnaskedExit&) = delete;

private:
    const std::function<void()> m_save;
};
