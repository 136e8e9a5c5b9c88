// The host's own commands: enough for a drawing program.
#pragma once

namespace devhost {
class CommandStack;
void RegisterNativeCommands(CommandStack& stack);
}  // namespace devhost
