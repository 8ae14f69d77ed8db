#pragma once

#include "DockCore/Ports/Folders.h"

namespace MacOS {

/// The user's folders as the file manager knows them. Any thread may call it, several at a time.
class Folders final : public DockCore::Folders {
public:
    QString home() override;
    QString applicationSupport() override;
    QStringList entries(const QString& folder) override;
};

} // namespace MacOS
