#include "Kelvane/Counted.h"

namespace Kelvane {

QString counted(qint64 count, const QString& noun, const QString& plural) {
    const QString several = plural.isEmpty() ? noun + u's' : plural;
    return QString::number(count) + u' ' + (count == 1 ? noun : several);
}

} // namespace Kelvane
