#pragma once

#include "Kelvane/Ports/Workspace.h"

namespace Fakes {

/// A desktop that a test moves by hand. It begins with nothing in front and a user who has just touched the keyboard.
class Workspace : public Kelvane::Workspace {
public:
    std::optional<Kelvane::RunningApplication> frontApplication() override {
        ++questions;
        return isGone ? std::nullopt : front;
    }
    std::optional<std::chrono::duration<double>> sinceLastInput() override {
        ++inputQuestions;
        if (sleepsWhenAsked)
            Q_EMIT paused();
        return isGone ? std::nullopt : idle;
    }

    /// An ordinary application with windows.
    static Kelvane::RunningApplication regular(const QString& bundleID, const std::optional<QString>& name = {}) {
        return {.isRegular = true, .bundleID = bundleID, .name = name};
    }

    /// Brings `application` to the front and says so, unless it is there already.
    void activate(const Kelvane::RunningApplication& application) {
        if (front == application)
            return;
        front = application;
        if (!isGone)
            Q_EMIT activated(application);
    }
    void pause() { Q_EMIT paused(); }
    void resume() { Q_EMIT resumed(); }

    std::optional<Kelvane::RunningApplication> front;
    std::optional<std::chrono::duration<double>> idle = std::chrono::seconds(0);
    /// The desktop went away: it answers nothing and announces nothing.
    bool isGone = false;
    /// The screens are found asleep by whoever asks for the user's input.
    bool sleepsWhenAsked = false;
    /// How often somebody asked for the front application, and for the user's input.
    int questions = 0;
    int inputQuestions = 0;
};

} // namespace Fakes
