#include "Platform/Posix/Terminal.h"

#include <QByteArray>

#include <unistd.h>

namespace Platform::Terminal {

bool showsColours() {
    return isatty(STDOUT_FILENO) == 1 && qgetenv("NO_COLOR").isEmpty() && qgetenv("TERM") != "dumb";
}

uint userID() {
    return getuid();
}

} // namespace Platform::Terminal
