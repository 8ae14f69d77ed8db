#pragma once

#include "Kelvane/AppModel.h"
#include "Kelvane/Commands/Answer.h"
#include "Kelvane/Commands/Command.h"

#include <QObject>

#include <deque>
#include <functional>

namespace Kelvane {

/// Carries out commands on the model, one after another in the order they came. It adds nothing of its own: a command
/// is one operation of the model and its answer in words or JSON. Main thread only; it must not outlive the model.
class CommandRunner : public QObject {
    Q_OBJECT

public:
    using Reply = std::function<void(const Answer&)>;

    explicit CommandRunner(AppModel& model);

    /// `reply` is called exactly once, on the main thread, possibly before this returns.
    void run(const Command& command, Colour colour, Reply reply);

private:
    struct Job {
        Command command;
        Colour colour;
        Reply reply;
    };
    void next();
    void carryOut(const Job& job);
    void finish(const Answer& answer);
    /// Waits until the model neither changes the Dock nor refreshes, so that a command overtakes neither.
    void whenSettled(std::function<void()> then);
    void whenRefreshed(std::function<void()> then);
    void look(const Job& job);
    void change(const Job& job);
    void restore(const Job& job);
    void adjust(const Job& job);
    AppModel::Reply replyWith(const Job& job);

    AppModel& m_model;
    std::deque<Job> m_jobs;
    bool m_isBusy = false;
};

} // namespace Kelvane
