#pragma once

#include <QList>
#include <QString>

#include <functional>
#include <memory>

class QQuickWindow;

/// A window to be measured, with what can be done to it.
class Subject {
public:
    /// One thing that a person does, and what kind of thing it is.
    struct Step {
        QString kind;
        std::function<void()> action;
        /// Follows each frame, as a finger that goes on scrolling; mostly nothing.
        std::function<void()> next = {};
    };

    virtual ~Subject() = default;
    /// Opens the window as the program would; the first time it makes it.
    virtual void open() = 0;
    /// The window, once it is open.
    virtual QQuickWindow& window() = 0;
    /// What the window shows has been made.
    virtual bool isFilled() = 0;
    virtual QList<Step> steps() = 0;

    /// The real application on the real adapters, in the home that the environment names.
    static std::unique_ptr<Subject> kelvane();
    /// A window of the same size with a bare list.
    static std::unique_ptr<Subject> bare();
};
