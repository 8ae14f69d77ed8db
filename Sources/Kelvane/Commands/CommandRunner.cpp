#include "Kelvane/Commands/CommandRunner.h"

#include "Kelvane/Commands/CommandJSON.h"
#include "Kelvane/Commands/CommandText.h"

#include <utility>

using namespace DockCore;
using namespace Qt::StringLiterals;

namespace Kelvane {

namespace {

using Found = std::variant<Profile, CommandMistake>;

Found findProfile(const AppModel& model, const std::optional<QString>& named) {
    if (!named)
        return model.activeProfile();
    QList<Profile> matches;
    QStringList names;
    for (const Profile& profile : model.profiles()) {
        if (uuidString(profile.id).compare(*named, Qt::CaseInsensitive) == 0)
            return profile;
        if (profile.name == *named)
            matches.append(profile);
        names.append(profile.name);
    }
    if (matches.size() == 1)
        return matches.constFirst();
    if (matches.isEmpty())
        return CommandMistake::inOneLine(
            u"There is no profile “%1”; expected one of %2."_s.arg(*named, names.join(u", ")));
    QStringList ids;
    for (const Profile& profile : std::as_const(matches))
        ids.append(uuidString(profile.id));
    return CommandMistake::inOneLine(
        u"More than one profile is called “%1”; expected one of their ids: %2."_s.arg(*named, ids.join(u", ")));
}

Answer mistaken(const CommandMistake& mistake) {
    return {.status = Answer::mistaken, .error = mistake.sentence};
}

bool needsRefresh(Command::Verb verb) {
    using enum Command::Verb;
    return verb == status || verb == plan || verb == rank || verb == apps;
}

} // namespace

CommandRunner::CommandRunner(AppModel& model)
    : m_model(model) {}

void CommandRunner::run(const Command& command, Colour colour, Reply reply) {
    m_jobs.push_back({command, colour, std::move(reply)});
    if (!m_isBusy)
        next();
}

void CommandRunner::next() {
    if (m_jobs.empty())
        return;
    m_isBusy = true;
    carryOut(m_jobs.front());
}

void CommandRunner::finish(const Answer& answer) {
    const Job job = std::move(m_jobs.front());
    m_jobs.pop_front();
    m_isBusy = false;
    job.reply(answer);
    if (!m_isBusy)
        next();
}

void CommandRunner::whenSettled(std::function<void()> then) {
    if (!m_model.isRefreshing() && !m_model.isWorking())
        return then();
    // A change of the Dock ends with a refresh.
    connect(
        &m_model, &AppModel::refreshed, this, [this, then = std::move(then)] { whenSettled(then); },
        Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
}

void CommandRunner::whenRefreshed(std::function<void()> then) {
    // The results of a refresh that overtakes this one are at least as fresh.
    connect(&m_model, &AppModel::refreshed, this, std::move(then), Qt::SingleShotConnection);
    m_model.refresh();
}

void CommandRunner::carryOut(const Job& job) {
    using enum Command::Verb;
    const Found profile = findProfile(m_model, job.command.profile);
    if (const auto* mistake = std::get_if<CommandMistake>(&profile))
        return finish(mistaken(*mistake));
    switch (job.command.verb) {
    case track:
    case automatic:
        return adjust(job);
    case restore:
        return whenSettled([this, job] { this->restore(job); });
    case apply:
    case resume:
        return whenSettled([this, job] { change(job); });
    default:
        if (needsRefresh(job.command.verb))
            return whenRefreshed([this, job] { look(job); });
        look(job);
    }
}

void CommandRunner::look(const Job& job) {
    const Found found = findProfile(m_model, job.command.profile);
    if (const auto* mistake = std::get_if<CommandMistake>(&found))
        return finish(mistaken(*mistake));
    finish({.output = job.command.json
                          ? CommandJSON::describe(m_model, job.command, std::get<Profile>(found))
                          : CommandText::describe(m_model, job.command, std::get<Profile>(found), job.colour)});
}

AppModel::Reply CommandRunner::replyWith(const Job& job) {
    return [this, job](const Outcome& outcome) {
        // The user's own change or refresh came first: wait for its end and start again.
        if (outcome.refused)
            return carryOut(job);
        Answer answer{.status = outcome.isError ? Answer::failed : Answer::done};
        if (outcome.isError)
            answer.error = outcome.text;
        if (job.command.json)
            answer.output = CommandJSON::outcome(outcome);
        else if (!outcome.isError)
            answer.output = outcome.text + u'\n';
        finish(answer);
    };
}

void CommandRunner::change(const Job& job) {
    // The profile may have gone while the command waited.
    const Found found = findProfile(m_model, job.command.profile);
    if (const auto* mistake = std::get_if<CommandMistake>(&found))
        return finish(mistaken(*mistake));
    m_model.captureOriginal();
    if (job.command.verb == Command::Verb::resume)
        return m_model.refreshAndResume(replyWith(job));
    if (job.command.profile)
        m_model.activate(std::get<Profile>(found).id, AppModel::Apply::no);
    m_model.refreshAndApply(AppModel::Notify::always, replyWith(job));
}

void CommandRunner::restore(const Job& job) {
    m_model.captureOriginal();
    if (!job.command.original && !job.command.snapshot)
        return m_model.restorePrevious(replyWith(job));
    for (const Snapshot& snapshot : m_model.snapshots()) {
        if (job.command.original ? snapshot.isOriginal : snapshot.id == *job.command.snapshot)
            return m_model.restore(snapshot, replyWith(job));
    }
    if (job.command.original)
        return finish({.status = Answer::failed,
                       .error = u"The original Dock could not be saved, so there is none to restore."_s});
    finish(mistaken(CommandMistake::inOneLine(
        u"There is no saved Dock “%1”; expected an id that “kelvanectl snapshots” lists."_s.arg(
            *job.command.snapshot))));
}

void CommandRunner::adjust(const Job& job) {
    if (job.command.verb == Command::Verb::track)
        m_model.setTracking(job.command.trackingOn);
    else
        m_model.setAutoUpdate(job.command.interval);
    finish({.output = job.command.json ? CommandJSON::outcome({}) : CommandText::setting(m_model, job.command.verb)});
}

} // namespace Kelvane
