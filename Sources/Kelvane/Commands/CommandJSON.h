#pragma once

#include "Kelvane/AppModel.h"
#include "Kelvane/Commands/Command.h"

namespace Kelvane::CommandJSON {

/// The document of a command that only looks. `profile` is the one it names, else the active one.
QString describe(const AppModel& model, const Command& command, const DockCore::Profile& profile);
/// The document of a command that changes something.
QString outcome(const Outcome& outcome);

} // namespace Kelvane::CommandJSON
