#pragma once

#include "DockCore/Ports/Folders.h"

namespace Platform {

/// The user's folders as the file manager knows them. Any thread may call it, several at a time.
class MacOSFolders final : public DockCore::Folders {
public:
    QString home() override;
    QString applicationSupport() override;
    QStringList entries(const QString& folder) override;
};

} // namespace Platform
