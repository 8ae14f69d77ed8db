#pragma once

#include <QtGlobal>

namespace Kelvane {

class AppModel;
class Desktop;

/// What view models are made from. QML makes them itself, so the main window installs this before it makes the engine;
/// tests hand the parts to the constructors instead. It owns nothing. Main thread only.
struct ViewContext {
    AppModel& model;
    Desktop& desktop;

    /// The installed context; fatal when there is none.
    static const ViewContext& current();
};

/// Installs a context for its own lifetime.
class ViewContextScope {
public:
    explicit ViewContextScope(const ViewContext& context);
    ~ViewContextScope();
    Q_DISABLE_COPY_MOVE(ViewContextScope)

private:
    ViewContext m_context;
    const ViewContext* m_previous;
};

} // namespace Kelvane
