#pragma once

#include "Window/Subject.h"

namespace ListScroll {

/// Scrolls the list of this object name from its top to its end, two rows a frame.
Subject::Step step(QQuickWindow& window, const QString& list);

} // namespace ListScroll
