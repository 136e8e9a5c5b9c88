// The host's own commands. They use the published interface, as modules do.
#pragma once

#include <span>

#include "accmd.h"

class AcDbEntity;

namespace devhost {

class CommandStack;

// A flag of a native command: Enter alone does not repeat it.
constexpr int kNotRepeated = 0x40000000;

struct NativeCommand {
  const wchar_t* name;
  int flags;
  AcRxFunctionPtr function;
};

std::span<const NativeCommand> DrawCommands();
std::span<const NativeCommand> EditCommands();
std::span<const NativeCommand> ObjectCommands();
std::span<const NativeCommand> ViewCommands();
std::span<const NativeCommand> ViewportCommands();
std::span<const NativeCommand> UserSystemCommands();
std::span<const NativeCommand> FileCommands();
std::span<const NativeCommand> InsertCommands();
std::span<const NativeCommand> ExportCommands();

std::span<const NativeCommand> BlockCommands();

// Adds an entity on the current layer to the current space of the current drawing, and owns it.
void AddToDrawing(AcDbEntity* entity);

bool IsPlainText(const AcDbEntity& entity);  // TEXT and MTEXT: what TEXTEDIT edits

void RegisterNativeCommands(CommandStack& stack);

}  // namespace devhost
