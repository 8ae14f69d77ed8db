#pragma once

#include <QString>

namespace Kelvane {

/// What a command ends with: the exit status and what goes to standard output and standard error. A plain value.
struct Answer {
    enum Status { done = 0, failed = 1, mistaken = 2 };

    int status = done;
    QString output = {};
    QString error = {};
    bool operator==(const Answer&) const = default;
};

/// Whether text for people may carry colours.
enum class Colour { none, terminal };

} // namespace Kelvane
