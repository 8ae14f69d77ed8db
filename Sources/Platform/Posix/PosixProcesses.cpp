#include "Platform/Posix/PosixProcesses.h"

#include <QFile>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char** environ; // NOLINT(readability-redundant-declaration): not every system declares it

namespace Platform {

namespace {

class FileActions {
public:
    FileActions() { posix_spawn_file_actions_init(&m_actions); }
    ~FileActions() { posix_spawn_file_actions_destroy(&m_actions); }
    FileActions(const FileActions&) = delete;
    FileActions& operator=(const FileActions&) = delete;

    bool discardOutput() {
        return posix_spawn_file_actions_addopen(&m_actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0) == 0;
    }
    const posix_spawn_file_actions_t* pointer() const { return &m_actions; }

private:
    posix_spawn_file_actions_t m_actions = {};
};

/// What this process ignores or blocks for its own sake is not the child's business.
class Attributes {
public:
    Attributes() {
        posix_spawnattr_init(&m_attributes);
        sigset_t signals;
        sigemptyset(&signals);
        posix_spawnattr_setsigmask(&m_attributes, &signals);
        sigaddset(&signals, SIGPIPE);
        posix_spawnattr_setsigdefault(&m_attributes, &signals);
        posix_spawnattr_setflags(&m_attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    ~Attributes() { posix_spawnattr_destroy(&m_attributes); }
    Attributes(const Attributes&) = delete;
    Attributes& operator=(const Attributes&) = delete;

    const posix_spawnattr_t* pointer() const { return &m_attributes; }

private:
    posix_spawnattr_t m_attributes = {};
};

} // namespace

std::optional<int> PosixProcesses::run(const QString& executable, const QStringList& arguments) {
    std::vector<QByteArray> words = {QFile::encodeName(executable)};
    words.reserve(static_cast<size_t>(arguments.size()) + 1);
    for (const QString& argument : arguments)
        words.push_back(argument.toLocal8Bit());
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (QByteArray& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);

    FileActions actions;
    if (!actions.discardOutput())
        return std::nullopt;
    const Attributes attributes;
    pid_t child = 0;
    if (posix_spawn(&child, words.front().constData(), actions.pointer(), attributes.pointer(), pointers.data(),
                    environ) != 0)
        return std::nullopt;
    int status = 0;
    while (waitpid(child, &status, 0) == -1) {
        if (errno != EINTR)
            return std::nullopt;
    }
    return WIFEXITED(status) ? std::optional(WEXITSTATUS(status)) : std::nullopt;
}

} // namespace Platform
