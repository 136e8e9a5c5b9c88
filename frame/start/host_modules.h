// Calls to the host's linker: load and unload the kernel, register this module.
#pragma once

void LoadKernel();
void UnloadKernel();
// `packet`: the argument of the host's load message.
void UnlockModule(void* packet);
void RegisterMdiAware(void* packet);
