// The host's own commands. They use the published interface, as modules do.
#pragma once

#include <span>

#include "accmd.h"

namespace devhost {

class CommandStack;

struct NativeCommand {
  const wchar_t* name;
  int flags;
  AcRxFunctionPtr function;
};

std::span<const NativeCommand> DrawCommands();
std::span<const NativeCommand> EditCommands();
std::span<const NativeCommand> ViewCommands();
std::span<const NativeCommand> ViewportCommands();
std::span<const NativeCommand> UserSystemCommands();
std::span<const NativeCommand> FileCommands();

void RegisterNativeCommands(CommandStack& stack);

}  // namespace devhost
