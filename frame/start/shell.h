// The module's state from load to unload. Created by the entry function.
#pragma once

#include "frame/commands/menu_commands.h"
#include "frame/start/menu_bring_up.h"

struct Shell {
  MenuCommands commands;
  MenuBringUp bringUp;
};

Shell* TheShell();  // null before load and after unload
