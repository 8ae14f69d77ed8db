#include "Kelvane/Commands/CommandText.h"

#include "DockCore/DockDiff.h"
#include "DockCore/DockStore.h"
#include "Kelvane/Counted.h"

#include <QLocale>

using namespace DockCore;
using namespace Qt::StringLiterals;

namespace Kelvane::CommandText {

namespace {

enum class Ink { plain, strong, faint, added, leaving, moved };

QString inked(const QString& text, Ink ink, Colour colour) {
    if (colour == Colour::none || ink == Ink::plain)
        return text;
    static const QMap<Ink, QString> codes = {{Ink::strong, u"1"_s},
                                             {Ink::faint, u"2"_s},
                                             {Ink::added, u"32"_s},
                                             {Ink::leaving, u"33"_s},
                                             {Ink::moved, u"34"_s}};
    return u"\x1b[%1m%2\x1b[0m"_s.arg(codes[ink], text);
}

QString moment(const QDateTime& date) {
    return QLocale::c().toString(date.toLocalTime(), u"d MMM yyyy, HH:mm"_s);
}

/// Rows of cells, each column as wide as its widest cell; the last column is left ragged.
QString table(const QList<QStringList>& rows) {
    QList<qsizetype> widths;
    for (const QStringList& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (qsizetype column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], row[column].size());
    }
    QString text;
    for (const QStringList& row : rows) {
        for (qsizetype column = 0; column + 1 < row.size(); ++column)
            text += row[column].leftJustified(widths[column] + 2);
        text += row.last() + u'\n';
    }
    return text;
}

QStringList labels(const QList<DockTile>& tiles, const QStringList& bundleIDs) {
    QStringList names;
    for (const QString& bundleID : bundleIDs) {
        const auto tile = std::ranges::find(tiles, bundleID, &DockTile::bundleID);
        names.append(tile == tiles.end() ? bundleID : tile->label);
    }
    return names;
}

qsizetype appCount(const QList<DockTile>& tiles) {
    return std::ranges::count_if(tiles, [](const DockTile& tile) { return !isSpacer(tile.kind); });
}

/// The tiles one a line, with a mark before what arrives or moves.
QString tileList(const QList<DockTile>& tiles, const DockDiff& diff, Colour colour) {
    QString text;
    int place = 0;
    for (const DockTile& tile : tiles) {
        const QString bundleID = tile.bundleID.value_or(QString());
        const bool isAdded = diff.added.contains(bundleID);
        const bool isMoved = diff.moved.contains(bundleID);
        const Ink ink = isAdded ? Ink::added : isMoved ? Ink::moved : Ink::plain;
        const QString mark = isAdded ? u"+"_s : isMoved ? u"↔"_s : u" "_s;
        if (isSpacer(tile.kind))
            text += inked(u"       ──\n"_s, Ink::faint, colour);
        else
            text += u"  %1 %2  %3\n"_s.arg(inked(mark, ink, colour), QString::number(++place).rightJustified(2),
                                           inked(tile.label.isEmpty() ? tile.signature() : tile.label, ink, colour));
    }
    return text;
}

QString changes(const QList<DockTile>& from, const QList<DockTile>& to, Colour colour) {
    const DockDiff diff(from, to);
    QString text = u"%1   %2   %3\n"_s.arg(inked(u"+ %1 added"_s.arg(diff.added.size()), Ink::added, colour),
                                           inked(u"− %1 leaving"_s.arg(diff.removed.size()), Ink::leaving, colour),
                                           inked(u"↔ %1 moved"_s.arg(diff.moved.size()), Ink::moved, colour));
    if (!diff.removed.isEmpty())
        text += u"Leaving: %1\n"_s.arg(labels(from, diff.removed).join(u", "));
    return text;
}

QString plan(const AppModel& model, const Profile& profile, Colour colour) {
    const QList<DockTile> tiles = model.plan(profile);
    if (tiles.isEmpty())
        return AppModel::emptyText(profile) + u'\n';
    if (layoutSignature(tiles) == layoutSignature(model.current()))
        return u"Your Dock already matches %1.\n"_s.arg(profile.name);
    return inked(u"Suggested for %1: %2\n"_s.arg(profile.name, counted(appCount(tiles), u"app"_s)), Ink::strong,
                 colour) +
           tileList(tiles, DockDiff(model.current(), tiles), colour) + u'\n' + changes(model.current(), tiles, colour);
}

QString status(const AppModel& model, Colour colour) {
    const AppSettings& settings = model.settings();
    const std::optional<QDateTime> since = model.usage().trackingSince();
    QList<QStringList> rows = {
        {u"Active profile"_s, model.activeProfile().name},
        {u"Reorganize automatically"_s, title(settings.autoUpdate)},
        {u"Track app usage"_s,
         (settings.trackingEnabled ? u"on"_s : u"off"_s) + (since ? u", since %1"_s.arg(moment(*since)) : QString())},
        {u"Last applied"_s, settings.lastApplied ? moment(*settings.lastApplied) : u"never"_s},
    };
    if (settings.autoPaused)
        rows.insert(2, {QString(), u"Paused: the Dock was changed outside Kelvane."_s});
    if (const std::optional<QString> file = DockStore::dryRunFile())
        rows.append({u"Dry run"_s, *file});
    return table(rows) + u'\n' +
           inked(u"Now: %1\n"_s.arg(counted(appCount(model.current()), u"app"_s)), Ink::strong, colour) +
           tileList(model.current(), {}, colour) + u'\n' + plan(model, model.activeProfile(), colour);
}

QString rank(const AppModel& model, UsageWindow window) {
    QList<QStringList> rows = {{u"#"_s, u"score"_s, u"minutes"_s, u"switches"_s, u"days"_s, u"opened"_s, u"name"_s}};
    int place = 0;
    for (const AppScore& score : model.rankings().value(window)) {
        rows.append({QString::number(++place), QString::number(score.score, 'f', 1),
                     QString::number(static_cast<qint64>(score.seconds / 60)), QString::number(score.activations),
                     QString::number(score.trackedDays), QString::number(score.spotlightDays), score.app.name});
    }
    return title(window) + u'\n' + table(rows);
}

QString profiles(const AppModel& model) {
    QList<QStringList> rows;
    for (const Profile& profile : model.profiles()) {
        rows.append({profile.id == model.activeProfile().id ? u"✓"_s : u" "_s, uuidString(profile.id),
                     u"%1 always there"_s.arg(profile.pinned.size()), u"%1 by usage"_s.arg(profile.adaptiveSlots),
                     title(profile.window), profile.name});
    }
    return table(rows);
}

QString snapshots(const AppModel& model) {
    QList<QStringList> rows;
    for (const Snapshot& snapshot : model.snapshots())
        rows.append({snapshot.id, moment(snapshot.date), counted(snapshot.bundleIDs.size(), u"app"_s),
                     snapshot.reason + (snapshot.isOriginal ? u" (Original)"_s : QString())});
    return rows.isEmpty() ? u"No Dock has been saved yet.\n"_s : table(rows);
}

QString apps(const AppModel& model) {
    QList<QStringList> rows;
    for (const AppInfo& app : model.installed())
        rows.append({app.bundleID, app.name, app.path});
    return rows.isEmpty() ? u"No applications were found.\n"_s : table(rows);
}

} // namespace

QString describe(const AppModel& model, const Command& command, const Profile& profile, Colour colour) {
    switch (command.verb) {
    case Command::Verb::plan:
        return plan(model, profile, colour);
    case Command::Verb::rank:
        return rank(model, command.window.value_or(profile.window));
    case Command::Verb::profiles:
        return profiles(model);
    case Command::Verb::snapshots:
        return snapshots(model);
    case Command::Verb::apps:
        return apps(model);
    default:
        return status(model, colour);
    }
}

QString setting(const AppModel& model, Command::Verb verb) {
    return verb == Command::Verb::track
               ? u"Track app usage: %1\n"_s.arg(model.settings().trackingEnabled ? u"on"_s : u"off"_s)
               : u"Reorganize automatically: %1\n"_s.arg(title(model.settings().autoUpdate));
}

} // namespace Kelvane::CommandText
