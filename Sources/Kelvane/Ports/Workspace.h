#pragma once

#include <QObject>
#include <QString>

#include <chrono>
#include <optional>

namespace Kelvane {

/// A program with windows, as the desktop sees it. A plain value.
struct RunningApplication {
    /// It has windows of its own and a place among the user's applications, unlike panels, agents and helpers.
    bool isRegular = false;
    /// Absent when the program belongs to no application bundle.
    std::optional<QString> bundleID;
    std::optional<QString> name;
    bool operator==(const RunningApplication&) const = default;
};

/// Which application is in front and whether the user is there. Main thread only; the signals arrive there too.
/// A desktop that goes away answers nothing, and answers again when it is back.
class Workspace : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// The application in front; nothing when there is none or it cannot be told.
    virtual std::optional<RunningApplication> frontApplication() = 0;
    /// Time since the user's last input of any kind in this session; nothing when it cannot be told, and the longest
    /// time there is where nobody can be, as on a machine without a display.
    /// Where the system does not announce that its screens went to sleep, asking finds it out: `paused` may come before
    /// the answer does.
    virtual std::optional<std::chrono::duration<double>> sinceLastInput() = 0;

Q_SIGNALS:
    /// An application came to the front, once for each time it did.
    void activated(const Kelvane::RunningApplication& application);
    /// The screen was locked or slept, the machine is about to sleep, or another user took over.
    /// Several reasons may overlap; each is announced by itself.
    void paused();
    /// The matching return.
    void resumed();
};

} // namespace Kelvane
