// The module's host commands, in one static table that is registered at load and taken back at
// unload by its group name.
#pragma once

void RegisterCommands();
void RemoveCommands();
