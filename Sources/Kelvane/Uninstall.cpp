#include "Kelvane/Uninstall.h"

#include "DockCore/Storage/Paths.h"
#include "Kelvane/Ports/LoginItem.h"

#include <QTextStream>

using namespace Qt::StringLiterals;

namespace Kelvane::Uninstall {

int run(LoginItem& loginItem, const DockCore::Paths& paths, QTextStream& output) {
    int status = 0;
    if (!loginItem.isEnabled()) {
        output << u"Kelvane does not open at login.\n"_s;
    } else if (const std::optional<QString> reason = loginItem.setEnabled(false)) {
        output << u"Kelvane still opens at login: "_s << *reason << u'\n';
        status = 1;
    } else {
        output << u"Kelvane no longer opens at login.\n"_s;
    }
    output << u"Left as they are: the Dock, and your usage, profiles, settings and saved Docks in\n    "_s
           << paths.support() << u"\nDelete that folder to remove them too.\n"_s;
    return status;
}

} // namespace Kelvane::Uninstall
