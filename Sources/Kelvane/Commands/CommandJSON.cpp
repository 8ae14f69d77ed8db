#include "Kelvane/Commands/CommandJSON.h"

#include "DockCore/DockDiff.h"
#include "DockCore/DockStore.h"
#include "DockCore/Ports/Clock.h"
#include "DockCore/Storage/JSONForm.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace DockCore;
using namespace Qt::StringLiterals;

namespace Kelvane::CommandJSON {

namespace {

template <typename List, typename Describe>
QJsonArray array(const List& list, Describe describe) {
    QJsonArray result;
    for (const auto& element : list)
        result.append(describe(element));
    return result;
}

QJsonObject tile(const DockTile& tile) {
    QJsonObject object{{u"id"_s, tile.id},
                       {u"kind"_s, rawValue(tile.kind)},
                       {u"label"_s, tile.label},
                       {u"signature"_s, tile.signature()}};
    if (tile.bundleID)
        object[u"bundleID"] = *tile.bundleID;
    if (tile.url)
        object[u"url"] = tile.url->absoluteString;
    return object;
}

QJsonObject diff(const QList<DockTile>& from, const QList<DockTile>& to) {
    const DockDiff diff(from, to);
    return {{u"added"_s, QJsonArray::fromStringList(diff.added)},
            {u"removed"_s, QJsonArray::fromStringList(diff.removed)},
            {u"moved"_s, QJsonArray::fromStringList(diff.moved)}};
}

QJsonObject status(const AppModel& model) {
    const AppSettings& settings = model.settings();
    QJsonObject object{{u"activeProfile"_s, model.activeProfile().name},
                       {u"activeProfileID"_s, uuidString(model.activeProfile().id)},
                       {u"autoUpdate"_s, static_cast<int>(settings.autoUpdate)},
                       {u"autoPaused"_s, settings.autoPaused},
                       {u"trackingEnabled"_s, settings.trackingEnabled},
                       {u"dryRun"_s, DockStore::isDryRun()},
                       {u"current"_s, array(model.current(), tile)},
                       {u"proposal"_s, array(model.proposal(), tile)},
                       {u"diff"_s, diff(model.current(), model.proposal())},
                       {u"matches"_s, model.proposalMatchesDock()}};
    if (model.usage().trackingSince())
        object[u"trackingSince"] = JSONForm<QDateTime>::write(*model.usage().trackingSince());
    if (settings.lastApplied)
        object[u"lastApplied"] = JSONForm<QDateTime>::write(*settings.lastApplied);
    return object;
}

QJsonObject plan(const AppModel& model, const Profile& profile) {
    const QList<DockTile> tiles = model.plan(profile);
    return {{u"profile"_s, profile.name},
            {u"profileID"_s, uuidString(profile.id)},
            {u"tiles"_s, array(tiles, tile)},
            {u"diff"_s, diff(model.current(), tiles)},
            {u"matches"_s, layoutSignature(tiles) == layoutSignature(model.current())}};
}

QJsonObject score(const AppScore& score) {
    QJsonObject object = score.app.toJson().toObject();
    object[u"seconds"] = score.seconds;
    object[u"activations"] = score.activations;
    object[u"trackedDays"] = score.trackedDays;
    object[u"spotlightDays"] = score.spotlightDays;
    object[u"score"] = score.score;
    if (score.lastUsed)
        object[u"lastUsed"] = JSONForm<QDateTime>::write(*score.lastUsed);
    return object;
}

QJsonObject rank(const AppModel& model, UsageWindow window) {
    return {{u"window"_s, days(window)},
            {u"trackedDays"_s, model.usage().trackedDays(window, model.services().clock.now())},
            {u"ranking"_s, array(model.rankings().value(window), score)}};
}

QJsonArray profiles(const AppModel& model) {
    return array(model.profiles(), [&model](const Profile& profile) {
        QJsonObject object = profile.toJson().toObject();
        object[u"active"] = profile.id == model.activeProfile().id;
        return object;
    });
}

QString text(const QJsonDocument& document) {
    return QString::fromUtf8(document.toJson(QJsonDocument::Indented));
}

} // namespace

QString describe(const AppModel& model, const Command& command, const Profile& profile) {
    switch (command.verb) {
    case Command::Verb::plan:
        return text(QJsonDocument(plan(model, profile)));
    case Command::Verb::rank:
        return text(QJsonDocument(rank(model, command.window.value_or(profile.window))));
    case Command::Verb::profiles:
        return text(QJsonDocument(profiles(model)));
    case Command::Verb::snapshots:
        return text(
            QJsonDocument(array(model.snapshots(), [](const Snapshot& snapshot) { return snapshot.toJson(); })));
    case Command::Verb::apps:
        return text(QJsonDocument(array(model.installed(), [](const AppInfo& app) { return app.toJson(); })));
    default:
        return text(QJsonDocument(status(model)));
    }
}

QString outcome(const Outcome& outcome) {
    return text(QJsonDocument(
        QJsonObject{{u"text"_s, outcome.text}, {u"isError"_s, outcome.isError}, {u"changed"_s, outcome.changed}}));
}

} // namespace Kelvane::CommandJSON
