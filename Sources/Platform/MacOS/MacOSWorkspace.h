#pragma once

#include "Kelvane/Ports/Workspace.h"

#include <memory>

namespace Platform {

class NotificationObservers;

/// The workspace's notifications as signals, and the application in front. Main thread only; its answers are fresh
/// while the main run loop turns.
class MacOSWorkspace final : public Kelvane::Workspace {
    Q_OBJECT

public:
    explicit MacOSWorkspace(QObject* parent = nullptr);
    /// After this no notification arrives any more.
    ~MacOSWorkspace() override;

    std::optional<Kelvane::RunningApplication> frontApplication() override;
    std::optional<std::chrono::duration<double>> sinceLastInput() override;

private:
    std::unique_ptr<NotificationObservers> m_observers;
};

} // namespace Platform
