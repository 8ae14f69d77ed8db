#pragma once

#include "Kelvane/AppModel.h"
#include "Kelvane/Commands/Answer.h"
#include "Kelvane/Commands/Command.h"

namespace Kelvane::CommandText {

/// The answer of a command that only looks, for people. `profile` is the one it names, else the active one.
QString describe(const AppModel& model, const Command& command, const DockCore::Profile& profile, Colour colour);
/// The setting that `verb` has changed, as it stands now.
QString setting(const AppModel& model, Command::Verb verb);

} // namespace Kelvane::CommandText
