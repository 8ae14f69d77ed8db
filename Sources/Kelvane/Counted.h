#pragma once

#include <QString>

namespace Kelvane {

/// A count with its noun: "1 app", "2 apps"; `plural` where that is not the noun and "s".
QString counted(qint64 count, const QString& noun, const QString& plural = {});

} // namespace Kelvane
