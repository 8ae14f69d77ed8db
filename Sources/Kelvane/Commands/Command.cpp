#include "Kelvane/Commands/Command.h"

#include <QCommandLineParser>
#include <QHash>

using namespace DockCore;
using namespace Qt::StringLiterals;

namespace Kelvane {

namespace {

struct Entry {
    QString name;
    Command::Verb verb;
    /// The most words that may follow, and what they are.
    qsizetype words;
    QString expected;
};

const QList<Entry>& entries() {
    using enum Command::Verb;
    static const QList<Entry> all = {
        {u"status"_s, status, 0, u"nothing"_s},
        {u"plan"_s, plan, 1, u"one profile"_s},
        {u"apply"_s, apply, 1, u"one profile"_s},
        {u"restore"_s, restore, 0, u"nothing, --original or --snapshot ID"_s},
        {u"rank"_s, rank, 0, u"nothing or --window week|month"_s},
        {u"profiles"_s, profiles, 0, u"nothing"_s},
        {u"snapshots"_s, snapshots, 0, u"nothing"_s},
        {u"apps"_s, apps, 0, u"nothing"_s},
        {u"track"_s, track, 1, u"on or off"_s},
        {u"auto"_s, automatic, 1, u"off, hourly, every4Hours or daily"_s},
        {u"resume"_s, resume, 0, u"nothing"_s},
    };
    return all;
}

const Entry* entryNamed(const QString& name) {
    const auto found = std::ranges::find(entries(), name, &Entry::name);
    return found == entries().end() ? nullptr : &*found;
}

QString commandNames() {
    QStringList names;
    for (const Entry& entry : entries())
        names.append(entry.name);
    return names.join(u", ");
}

std::optional<AutoUpdate> intervalNamed(const QString& name) {
    for (const AutoUpdate interval : allAutoUpdates()) {
        if (commandName(interval) == name)
            return interval;
    }
    return std::nullopt;
}

/// An option that lacks its value, or has one that it does not take. The parser's own words would be two lines.
QString misusedOption(const QStringList& arguments) {
    const QString last = arguments.value(arguments.size() - 1);
    if (last == u"--window" || last == u"-window")
        return u"--window expects week or month after it."_s;
    if (last == u"--snapshot" || last == u"-snapshot")
        return u"--snapshot expects an id after it, one that “kelvanectl snapshots” lists."_s;
    return u"--json and --original take no value; expected them alone."_s;
}

/// Fills in what only some commands take; gives what is wrong with it.
std::optional<QString> readWords(Command& command, const Entry& entry, const QStringList& words) {
    if (words.size() > entry.words)
        return u"“%1” does not fit after “%2”; expected %3."_s.arg(words.last(), entry.name, entry.expected);
    const QString word = words.value(0);
    switch (command.verb) {
    case Command::Verb::track:
        if (word != u"on" && word != u"off")
            return u"“track” expects on or off."_s;
        command.trackingOn = word == u"on";
        break;
    case Command::Verb::automatic: {
        const std::optional<AutoUpdate> interval = intervalNamed(word);
        if (!interval)
            return u"“auto” expects off, hourly, every4Hours or daily."_s;
        command.interval = *interval;
        break;
    }
    default:
        if (!words.isEmpty())
            command.profile = word;
    }
    return std::nullopt;
}

} // namespace

QString commandName(AutoUpdate interval) {
    switch (interval) {
    case AutoUpdate::off:
        return u"off"_s;
    case AutoUpdate::hourly:
        return u"hourly"_s;
    case AutoUpdate::every4Hours:
        return u"every4Hours"_s;
    case AutoUpdate::daily:
        return u"daily"_s;
    }
    Q_UNREACHABLE();
}

CommandMistake CommandMistake::inOneLine(QString sentence) {
    for (QChar& character : sentence) {
        if (character.category() == QChar::Other_Control)
            character = u' ';
    }
    return {sentence.simplified()};
}

bool isRepeatable(const Command& command) {
    // Going back to the previous Dock twice goes back and forth.
    return command.verb != Command::Verb::restore || command.original || command.snapshot;
}

std::variant<Command, CommandMistake> parseCommand(const QStringList& arguments) {
    const auto mistake = CommandMistake::inOneLine;
    QCommandLineParser parser;
    const QCommandLineOption json(u"json"_s);
    const QCommandLineOption original(u"original"_s);
    const QCommandLineOption snapshot(u"snapshot"_s, {}, u"ID"_s);
    const QCommandLineOption window(u"window"_s, {}, u"week|month"_s);
    parser.addOptions({json, original, snapshot, window});
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    const bool isUnderstood = parser.parse(QStringList{u"kelvanectl"_s} + arguments);
    if (!parser.unknownOptionNames().isEmpty())
        return mistake(
            u"There is no option “%1”; expected --json, --original, --snapshot ID, --window week|month, --help "
            u"or --version."_s.arg(parser.unknownOptionNames().constFirst()));
    if (!isUnderstood)
        return mistake(misusedOption(arguments));
    QStringList words = parser.positionalArguments();
    if (words.isEmpty())
        return mistake(u"No command was given; expected one of %1."_s.arg(commandNames()));
    const QString name = words.takeFirst();
    const Entry* entry = entryNamed(name);
    if (entry == nullptr)
        return mistake(u"There is no command “%1”; expected one of %2."_s.arg(name, commandNames()));

    Command command{.verb = entry->verb, .json = parser.isSet(json)};
    if (const std::optional<QString> wrong = readWords(command, *entry, words))
        return mistake(*wrong);
    for (const auto& [option, owner] : {std::pair(original, Command::Verb::restore),
                                        {snapshot, Command::Verb::restore},
                                        {window, Command::Verb::rank}}) {
        if (parser.isSet(option) && command.verb != owner)
            return mistake(u"“--%1” does not fit after “%2”; expected %3."_s.arg(option.names().constFirst(),
                                                                                 entry->name, entry->expected));
    }
    if (parser.isSet(original) && parser.isSet(snapshot))
        return mistake(u"“restore” expects --original or --snapshot ID, not both."_s);
    command.original = parser.isSet(original);
    if (parser.isSet(snapshot))
        command.snapshot = parser.value(snapshot);
    if (parser.isSet(window)) {
        const QString value = parser.value(window);
        if (value != u"week" && value != u"month")
            return mistake(u"--window expects week or month, not “%1”."_s.arg(value));
        command.window = value == u"week" ? UsageWindow::week : UsageWindow::month;
    }
    return command;
}

QString commandHelp() {
    return uR"(Keeps the Dock in step with how you work.

Usage: kelvanectl COMMAND [ARGUMENTS] [--json]

Look
  status                     the Dock, the active profile and what it suggests
  plan [PROFILE]             what applying a profile would make of the Dock
  rank [--window week|month] the applications by use
  profiles                   the profiles
  snapshots                  the saved Docks
  apps                       the installed applications

Change the Dock
  apply [PROFILE]            bring the Dock in line, after saving it
  restore                    bring the previous Dock back
  restore --original         bring back the Dock as it was at the very first
  restore --snapshot ID      bring back a saved Dock
  resume                     end the pause after a change by hand, and bring the Dock in line

Settings
  track on|off               record which application is in front
  auto off|hourly|every4Hours|daily
                             how often the Dock is brought in line by itself

Options
  --json                     one JSON document on standard output
  --help                     this text
  --version                  the version

PROFILE is a profile's name or its id. While Kelvane runs, it carries the command out.

Environment
  KELVANE_DRY_RUN            a property-list file that stands in for the Dock
  KELVANE_HOME               the folder for Kelvane's own files
  NO_COLOR                   no colours

Exit status: 0 done, 1 the operation failed, 2 the command line was wrong.
)"_s;
}

} // namespace Kelvane
