#pragma once

#include "DockCore/Settings.h"
#include "DockCore/UsageWindow.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

namespace Kelvane {

/// One command of the command line, its arguments understood but not yet looked up. A plain value.
struct Command {
    enum class Verb { status, plan, apply, restore, rank, profiles, snapshots, apps, track, automatic, resume };

    Verb verb = Verb::status;
    /// One JSON document instead of text.
    bool json = false;
    /// A profile's name or identifier.
    std::optional<QString> profile = std::nullopt;
    bool original = false;
    std::optional<QString> snapshot = std::nullopt;
    std::optional<DockCore::UsageWindow> window = std::nullopt;
    bool trackingOn = false;
    DockCore::AutoUpdate interval = DockCore::AutoUpdate::off;

    bool operator==(const Command&) const = default;
};

/// What was wrong with a command line, in one line that says what was expected.
struct CommandMistake {
    QString sentence;
    /// Keeps to one line, and quiet on a terminal, whatever characters are in the words that the sentence quotes.
    static CommandMistake inOneLine(QString sentence);
    bool operator==(const CommandMistake&) const = default;
};

/// The words of a command line, the program's name left out.
std::variant<Command, CommandMistake> parseCommand(const QStringList& arguments);

/// Whether running it a second time does no more than running it once.
bool isRepeatable(const Command& command);

/// How the command line names an interval: "off", "hourly", "every4Hours", "daily".
QString commandName(DockCore::AutoUpdate interval);

/// What "--help" prints.
QString commandHelp();

} // namespace Kelvane
