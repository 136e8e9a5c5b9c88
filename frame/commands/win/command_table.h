// The module's host commands: one static table, registered at load and removed by its group name
// at unload.
#pragma once

void RegisterCommands();
void RemoveCommands();
