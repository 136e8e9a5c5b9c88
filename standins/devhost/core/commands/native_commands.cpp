// Registering the host's own commands; see the header.
#include "devhost/core/commands/native_commands.h"

#include "devhost/core/commands/command_stack.h"

namespace devhost {

void RegisterNativeCommands(CommandStack& stack) {
  for (const auto& commands :
       {DrawCommands(), EditCommands(), ObjectCommands(), ViewCommands(), ViewportCommands(),
        UserSystemCommands(), FileCommands(), InsertCommands(), ExportCommands(), BlockCommands()})
    for (const NativeCommand& c : commands) stack.AddNative(c.name, c.flags, c.function);
}

}  // namespace devhost
