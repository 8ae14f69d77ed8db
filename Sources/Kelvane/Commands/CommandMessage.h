#pragma once

#include "Kelvane/Commands/Answer.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace Kelvane {

/// What one process asks of the application that runs: a command line, or to show its window. One line of JSON each
/// way. A plain value.
struct CommandRequest {
    enum class Kind { command, showWindow };
    Kind kind = Kind::command;
    QStringList arguments = {};
    Colour colour = Colour::none;

    bool operator==(const CommandRequest&) const = default;

    QByteArray toLine() const;
    /// Nothing when the line is not a request.
    static std::optional<CommandRequest> fromLine(const QByteArray& text);
};

QByteArray toLine(const Answer& answer);
std::optional<Answer> answerFromLine(const QByteArray& text);

/// The longest request that is read, in bytes.
constexpr qint64 longestRequest = 64LL * 1024;

/// Where the application of this support folder listens. In the folder itself, or, where that path is too long for a
/// socket, among the temporary files under a name that follows from it.
QString commandSocketPath(const QString& supportFolder);

} // namespace Kelvane
