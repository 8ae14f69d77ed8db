#pragma once

#include "Kelvane/Commands/CommandMessage.h"

#include <QString>

#include <chrono>
#include <variant>

namespace Kelvane {

/// Asks the application that runs. It blocks the calling thread and needs no event loop.
namespace CommandClient {

/// Why there is no answer.
enum class Silence {
    /// Nobody listens there.
    unreachable,
    /// It was asked, and went away before it answered.
    lost,
    /// It was asked, and has not answered in time.
    late
};

/// Asks over the socket at `socketPath` if it belongs to `user`, and waits `patience` for the answer.
std::variant<Answer, Silence> ask(const QString& socketPath, const CommandRequest& request, uint user,
                                  std::chrono::milliseconds patience);

} // namespace CommandClient
} // namespace Kelvane
